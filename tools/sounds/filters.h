// Filters of second order for one channel. A filter keeps what it has heard, so every sound needs one of its
// own. Frequencies are in Hz, gains in decibels.
#pragma once

namespace quillet {

struct Filter {
    double b0, b1, b2, a1, a2;
    double x1 = 0, x2 = 0, y1 = 0, y2 = 0;

    double operator()(double x) {
        const double y = b0 * x + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2;
        x2 = x1, x1 = x;
        y2 = y1, y1 = y;
        return y;
    }
};

Filter LowPass(double frequency, int rate);
Filter HighPass(double frequency, int rate);
Filter BandPass(double frequency, double quality, int rate);  // passes the frequency itself unchanged
Filter HighShelf(double frequency, double gain, int rate);

// A body that rings at the frequency when it is struck, and is 60 dB quieter after those seconds. A blow much
// shorter than a period sets it ringing as high as the sum of the blow's samples.
Filter Ringing(double frequency, double seconds, int rate);

}  // namespace quillet
