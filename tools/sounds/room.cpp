// The room in which everything sounds: a few echoes that go round in circles of different lengths, and get
// softer and duller as they do.
#include <array>
#include <cmath>

#include "instruments.h"

namespace quillet {
namespace {

constexpr double kSeconds = 0.55;  // until the room is 60 dB quieter

struct Delay {
    std::vector<double> line;
    std::size_t at = 0;

    explicit Delay(std::size_t length) : line(length) {}

    double& Place() { return line[at]; }
    void Step() { at = (at + 1) % line.size(); }
};

// A circle: what comes back goes in again.
struct Circle {
    Delay delay;
    double kept, dull = 0;

    explicit Circle(std::size_t length)
        : delay(length), kept(std::pow(10, -3.0 * static_cast<double>(length) / kTrackRate / kSeconds)) {}

    double operator()(double x) {
        const double back = delay.Place();
        dull = 0.55 * back + 0.45 * dull;
        delay.Place() = x + kept * dull;
        delay.Step();
        return back;
    }
};

// Scatters an echo into many without changing its colour.
struct Scatter {
    Delay delay;

    explicit Scatter(std::size_t length) : delay(length) {}

    double operator()(double x) {
        const double back = delay.Place(), in = x + 0.6 * back;
        delay.Place() = in;
        delay.Step();
        return back - 0.6 * in;
    }
};

// What one ear hears. The circles of the ears differ, so that the room has width.
std::vector<double> Echoes(const std::vector<double>& dry, std::size_t spread) {
    std::array circles = {Circle(1116 + spread), Circle(1277 + spread), Circle(1422 + spread),
                          Circle(1557 + spread)};
    std::array scatters = {Scatter(556 + spread), Scatter(225 + spread)};
    std::vector<double> echoes(dry.size());
    for (std::size_t i = 0; i < dry.size(); ++i) {
        double sum = 0;
        for (Circle& circle : circles) sum += circle(dry[i]) / 4;
        for (Scatter& scatter : scatters) sum = scatter(sum);
        echoes[i] = sum;
    }
    return echoes;
}

}  // namespace

void AddRoom(Track& track, double wet) {
    std::vector<double> middle(track.left.size());
    for (std::size_t i = 0; i < middle.size(); ++i) middle[i] = (track.left[i] + track.right[i]) / 2;
    const auto left = Echoes(middle, 0), right = Echoes(middle, 23);
    for (std::size_t i = 0; i < middle.size(); ++i) {
        track.left[i] += wet * left[i];
        track.right[i] += wet * right[i];
    }
}

Wave WaveOf(const Track& track, int channels) {
    Wave wave{kTrackRate, channels, {}};
    for (std::size_t i = 0; i < track.left.size(); ++i) {
        const double left = track.left[i], right = track.right[i];
        if (channels == 2) wave.samples.push_back(static_cast<float>(left));
        wave.samples.push_back(static_cast<float>(channels == 2 ? right : (left + right) / 2));
    }
    return wave;
}

}  // namespace quillet
