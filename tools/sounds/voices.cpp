#include "voices.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "filters.h"
#include "levels.h"

namespace quillet {
namespace {

constexpr double kLoudness = -20;                // LUFS, as of the game's own sounds
constexpr float kHush = 0.012F;                  // of the highest peak: what is softer at the ends is silence
constexpr double kBreath = 0.02, kPause = 0.15;  // seconds of it that stay, at the ends and between
constexpr double kLoudPart = 0.35;               // of full scale: louder peaks are softened

float Peak(const Wave& wave) {
    float peak = 0;
    for (const float sample : wave.samples) peak = std::max(peak, std::abs(sample));
    return peak;
}

void Trim(Wave& wave) {
    const auto isHeard = [hush = kHush * Peak(wave)](float sample) { return std::abs(sample) > hush; };
    auto& samples = wave.samples;
    const auto breath = static_cast<std::ptrdiff_t>(kBreath * wave.rate);
    const auto last = std::find_if(samples.rbegin(), samples.rend(), isHeard).base();
    samples.erase(last + std::min(breath, samples.end() - last), samples.end());
    const auto first = std::ranges::find_if(samples, isHeard);
    samples.erase(samples.begin(), first - std::min(breath, first - samples.begin()));
}

// Speech synthesisers take a long breath between sentences.
void ShortenPauses(Wave& wave) {
    const auto longest = static_cast<std::size_t>(kPause * wave.rate);
    const float hush = kHush * Peak(wave);
    std::vector<float> samples;
    std::size_t silent = 0;
    for (const float sample : wave.samples) {
        silent = std::abs(sample) > hush ? 0 : silent + 1;
        if (silent <= longest) samples.push_back(sample);
    }
    wave.samples = std::move(samples);
}

// As if spoken by somebody of that size, who is also so much quicker.
Wave Resized(const Wave& wave, double size) {
    Wave resized{wave.rate, 1, {}};
    for (double at = 0; at + 1 < static_cast<double>(wave.samples.size()); at += 1 / size) {
        const auto before = static_cast<std::size_t>(at);
        const auto part = static_cast<float>(at - std::floor(at));
        resized.samples.push_back((1 - part) * wave.samples[before] + part * wave.samples[before + 1]);
    }
    return resized;
}

// The short echoes of a metal box, one behind the other.
void SpeakInBox(Wave& wave) {
    const auto depth = static_cast<std::size_t>(0.0075 * wave.rate);
    for (std::size_t i = depth; i < wave.samples.size(); ++i) {
        wave.samples[i] += 0.55F * wave.samples[i - depth];
    }
}

struct Hoot {
    double seconds, pause;
};

// A round low tone with some breath that rises a little and falls.
void AddHoot(Wave& wave, Hoot hoot) {
    const auto length = static_cast<std::size_t>(hoot.seconds * wave.rate);
    double phase = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const double swell =
            std::sin(std::numbers::pi * static_cast<double>(i) / static_cast<double>(length));
        phase += 2 * std::numbers::pi * (330 + 55 * swell) / wave.rate;
        const double tone = std::sin(phase) + 0.12 * std::sin(2 * phase) + 0.05 * std::sin(3 * phase);
        wave.samples.push_back(static_cast<float>(0.11 * std::pow(swell, 0.7) * tone));
    }
    wave.samples.resize(wave.samples.size() + static_cast<std::size_t>(hoot.pause * wave.rate));
}

void HootFirst(Wave& wave) {
    Wave hoots{wave.rate, 1, {}};
    for (const Hoot hoot : {Hoot{0.13, 0.05}, Hoot{0.3, 0.07}}) AddHoot(hoots, hoot);
    wave.samples.insert(wave.samples.begin(), hoots.samples.begin(), hoots.samples.end());
}

struct Manner {
    std::string_view name;
    void (*apply)(Wave&);
};
constexpr std::array kManners = {Manner{"plain", [](Wave&) {}}, Manner{"robot", SpeakInBox},
                                 Manner{"owl", HootFirst}};

// No rumble, and softer hissing than synthesisers have.
void Clean(Wave& wave) {
    Filter rumble = HighPass(90, wave.rate), hiss = HighShelf(5000, -5, wave.rate);
    for (float& sample : wave.samples) sample = static_cast<float>(hiss(rumble(static_cast<double>(sample))));
}

// Rounds off the highest peaks, so that the words can be as loud as music is.
void Soften(Wave& wave) {
    for (float& sample : wave.samples) {
        const double over = std::abs(static_cast<double>(sample)) - kLoudPart;
        if (over <= 0) continue;
        const double range = 1 - kLoudPart;
        sample = std::copysign(static_cast<float>(kLoudPart + range * std::tanh(over / range)), sample);
    }
}

}  // namespace

bool IsManner(std::string_view manner) {
    return std::ranges::find(kManners, manner, &Manner::name) != kManners.end();
}

Wave MakeVoice(const Wave& spoken, double size, std::string_view manner) {
    Wave wave = spoken;
    Trim(wave);
    ShortenPauses(wave);
    wave = Resized(wave, size);
    Clean(wave);
    SetLoudness(wave, kLoudness);
    std::ranges::find(kManners, manner, &Manner::name)->apply(wave);
    Soften(wave);
    Fade(wave, 0.005, 0.03);
    SetLoudness(wave, kLoudness);
    return wave;
}

}  // namespace quillet
