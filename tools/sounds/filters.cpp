#include "filters.h"

#include <cmath>
#include <numbers>

namespace quillet {
namespace {

constexpr double kFlat = std::numbers::sqrt2 / 2;  // the quality without a hump

// The angle and the damping that all the formulas share.
struct Corner {
    double cosine, alpha;

    Corner(double frequency, double quality, int rate) {
        const double angle = 2 * std::numbers::pi * frequency / rate;
        cosine = std::cos(angle);
        alpha = std::sin(angle) / (2 * quality);
    }
};

Filter Normal(double b0, double b1, double b2, double a0, double a1, double a2) {
    return {b0 / a0, b1 / a0, b2 / a0, a1 / a0, a2 / a0};
}

}  // namespace

Filter LowPass(double frequency, int rate) {
    const Corner at(frequency, kFlat, rate);
    const double pass = (1 - at.cosine) / 2;
    return Normal(pass, 2 * pass, pass, 1 + at.alpha, -2 * at.cosine, 1 - at.alpha);
}

Filter HighPass(double frequency, int rate) {
    const Corner at(frequency, kFlat, rate);
    const double pass = (1 + at.cosine) / 2;
    return Normal(pass, -2 * pass, pass, 1 + at.alpha, -2 * at.cosine, 1 - at.alpha);
}

Filter BandPass(double frequency, double quality, int rate) {
    const Corner at(frequency, quality, rate);
    return Normal(at.alpha, 0, -at.alpha, 1 + at.alpha, -2 * at.cosine, 1 - at.alpha);
}

Filter HighShelf(double frequency, double gain, int rate) {
    const Corner at(frequency, kFlat, rate);
    const double a = std::pow(10, gain / 40), slope = 2 * std::sqrt(a) * at.alpha;
    const double up = a + 1, down = a - 1;
    return Normal(a * (up + down * at.cosine + slope), -2 * a * (down + up * at.cosine),
                  a * (up + down * at.cosine - slope), up - down * at.cosine + slope,
                  2 * (down - up * at.cosine), up - down * at.cosine - slope);
}

Filter Ringing(double frequency, double seconds, int rate) {
    const double angle = 2 * std::numbers::pi * frequency / rate;
    const double decay = std::pow(10, -3 / (seconds * rate));
    return {std::sin(angle), 0, 0, -2 * decay * std::cos(angle), decay * decay};
}

}  // namespace quillet
