#include "levels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "filters.h"

namespace quillet {
namespace {

constexpr double kHighestPeak = -2;
constexpr double kWindow = 0.4, kStep = 0.01;  // seconds

double Decibels(double power) { return 10 * std::log10(std::max(power, 1e-12)); }

// The two filters of BS.1770: the head makes high tones louder, low ones are hardly heard. The standard gives
// numbers for one rate only; these are the shapes behind them.
Filter HeadFilter(int rate) {
    const double k = std::tan(std::numbers::pi * 1681.974450955533 / rate);
    const double high = std::pow(10, 3.999843853973347 / 20), band = std::pow(high, 0.4996667741545416);
    const double q = 0.7071752369554196, a0 = 1 + k / q + k * k;
    return {(high + band * k / q + k * k) / a0, 2 * (k * k - high) / a0, (high - band * k / q + k * k) / a0,
            2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0};
}

Filter LowTonesFilter(int rate) {
    const double k = std::tan(std::numbers::pi * 38.13547087602444 / rate);
    const double q = 0.5003270373238773, a0 = 1 + k / q + k * k;
    return {1, -2, 1, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0};
}

// The weighted energy of each step, both loudspeakers together, with a window of silence behind it.
std::vector<double> EnergyOfSteps(const Wave& wave) {
    const double perStep = kStep * wave.rate;
    std::vector<double> steps(static_cast<std::size_t>(static_cast<double>(wave.Moments()) / perStep) + 1 +
                              static_cast<std::size_t>(kWindow / kStep));
    const auto channels = static_cast<std::size_t>(wave.channels);
    for (std::size_t channel = 0; channel < channels; ++channel) {
        Filter head = HeadFilter(wave.rate), lowTones = LowTonesFilter(wave.rate);
        for (std::size_t i = 0; i < wave.Moments(); ++i) {
            const double heard = lowTones(head(static_cast<double>(wave.samples[i * channels + channel])));
            steps[static_cast<std::size_t>(static_cast<double>(i) / perStep)] +=
                heard * heard * 2 / wave.channels;
        }
    }
    return steps;
}

}  // namespace

double PeakLevel(const Wave& wave) {
    double peak = 0;
    for (const float sample : wave.samples) peak = std::max(peak, std::abs(static_cast<double>(sample)));
    return Decibels(peak * peak);
}

double LoudestMoment(const Wave& wave) {
    const std::vector<double> steps = EnergyOfSteps(wave);
    const auto inWindow = static_cast<std::size_t>(kWindow / kStep);
    double energy = 0, loudest = 0;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        energy += steps[i];
        if (i >= inWindow) energy -= steps[i - inWindow];
        loudest = std::max(loudest, energy);
    }
    return -0.691 + Decibels(loudest / (kWindow * wave.rate));
}

void SetLoudness(Wave& wave, double loudness) {
    const double gain = std::min(loudness - LoudestMoment(wave), kHighestPeak - PeakLevel(wave));
    const auto factor = static_cast<float>(std::pow(10, gain / 20));
    for (float& sample : wave.samples) sample *= factor;
}

void Fade(Wave& wave, double secondsIn, double secondsOut) {
    const auto slope = [](double part) {
        return static_cast<float>(0.5 - 0.5 * std::cos(std::numbers::pi * std::clamp(part, 0.0, 1.0)));
    };
    const auto channels = static_cast<std::size_t>(wave.channels);
    for (std::size_t i = 0; i < wave.samples.size(); ++i) {
        const double fromStart = static_cast<double>(i / channels) / wave.rate;
        const double toEnd = static_cast<double>(wave.Moments() - 1 - i / channels) / wave.rate;
        wave.samples[i] *= slope(fromStart / secondsIn) * slope(toEnd / secondsOut);
    }
}

}  // namespace quillet
