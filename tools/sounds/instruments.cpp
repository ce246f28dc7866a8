#include "instruments.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

#include "filters.h"

namespace quillet {
namespace {

using std::numbers::pi;

double Frequency(int pitch) { return 440 * std::exp2((pitch - 69) / 12.0); }

std::size_t Moment(double seconds) { return static_cast<std::size_t>(std::lround(seconds * kTrackRate)); }

// Adds a sound of one channel to the track, at equal power wherever it stands.
void Add(Track& track, const std::vector<double>& sound, Touch touch) {
    const double angle = (touch.side + 1) * pi / 4, start = std::max(touch.at, 0.0);
    const std::size_t from = std::min(Moment(start), track.left.size());
    const std::size_t count = std::min(sound.size(), track.left.size() - from);
    for (std::size_t i = 0; i < count; ++i) {
        track.left[from + i] += touch.force * std::cos(angle) * sound[i];
        track.right[from + i] += touch.force * std::sin(angle) * sound[i];
    }
}

// The push of a mallet or finger: half a wave, with the sum of 1. The longer, the softer the sound.
std::vector<double> Push(double seconds) {
    std::vector<double> push(std::max<std::size_t>(Moment(seconds), 1));
    double sum = 0;
    for (std::size_t i = 0; i < push.size(); ++i) {
        push[i] = std::sin(pi * (static_cast<double>(i) + 0.5) / static_cast<double>(push.size()));
        sum += push[i];
    }
    for (double& sample : push) sample /= sum;
    return push;
}

// One of the ways in which a body rings.
struct Mode {
    double frequency, loudness, seconds;
};

// A body that was pushed.
std::vector<double> Ring(std::span<const Mode> modes, const std::vector<double>& push, double seconds) {
    std::vector<double> sound(Moment(seconds));
    for (const Mode& mode : modes) {
        Filter body = Ringing(mode.frequency, mode.seconds, kTrackRate);
        for (std::size_t i = 0; i < sound.size(); ++i) {
            sound[i] += mode.loudness * body(i < push.size() ? push[i] : 0);
        }
    }
    return sound;
}

}  // namespace

Track::Track(double seconds) : left(Moment(seconds)), right(left.size()) {}

double Chance::Between(double low, double high) {
    return low + (high - low) * static_cast<std::uint32_t>(engine_()) / 4294967296.0;
}

void StrikeBar(Track& track, int pitch, Touch touch) {
    // The builder of a marimba thins its bars until the overtones are two octaves, and a little more than
    // three, above the tone. Low bars ring longer.
    const double tone = Frequency(pitch), seconds = 1.9 * std::pow(196 / tone, 0.5);
    const std::array modes = {Mode{tone, 1, seconds}, Mode{tone * 3.98, 0.42, seconds / 4},
                              Mode{tone * 9.6, 0.16, seconds / 10}, Mode{310, 0.12, 0.06}};
    const double softness = std::clamp(0.45 / tone, 0.0004, 0.0018) / std::clamp(touch.force, 0.5, 1.2);
    Add(track, Ring(modes, Push(softness), seconds), touch);
}

void PluckString(Track& track, int pitch, Touch touch) {
    // A wave runs along the string and comes back, duller each time. Plucked at a fifth of its length.
    const double period = kTrackRate / Frequency(pitch);
    const auto length = static_cast<std::size_t>(period - 0.5);
    const double between = period - 0.5 - static_cast<double>(length);
    const double kept = std::pow(10, -3 * period / kTrackRate / 1.9);
    std::vector<double> string(length);
    for (std::size_t i = 0; i < length; ++i) {
        const double place = (static_cast<double>(i) + 0.5) / static_cast<double>(length);
        string[i] = (place < 0.2 ? place / 0.2 : (1 - place) / 0.8) - 0.5;
    }
    Filter finger = LowPass(2600, kTrackRate), ground = HighPass(60, kTrackRate);
    std::vector<double> sound(Moment(2));
    double before = 0, end = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        double& place = string[i % length];
        const double late = (1 - between) * place + between * end;
        end = place;
        const double release = std::min(static_cast<double>(i) / (0.002 * kTrackRate), 1.0);
        sound[i] = 0.9 * release * ground(finger(place));
        place = kept * (late + before) / 2;
        before = late;
    }
    Add(track, sound, touch);
}

void SetTile(Track& track, double size, Touch touch) {
    // A small block of hard wood; below it the board gives a short thud.
    const std::array modes = {Mode{1180 / size, 1, 0.045},    Mode{2210 / size, 0.6, 0.03},
                              Mode{3480 / size, 0.35, 0.022}, Mode{5150 / size, 0.14, 0.012},
                              Mode{236, 0.5, 0.06},           Mode{415, 0.3, 0.04}};
    Add(track, Ring(modes, Push(0.00035), 0.06), touch);
}

void StirPaper(Track& track, double seconds, Touch touch, Chance& chance) {
    Filter sheet = BandPass(3200, 0.8, kTrackRate), soft = LowPass(6500, kTrackRate);
    std::vector<double> sound(Moment(seconds));
    double crackle = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(sound.size());
        if (chance.Between(0, 1) < 0.004) crackle = chance.Between(0.3, 1);
        crackle *= 0.997;
        const double stroke = std::sin(pi * part) * std::sin(pi * part);
        sound[i] = soft(sheet(chance.Between(-1, 1) * stroke * (0.35 + crackle)));
    }
    Add(track, sound, touch);
}

void DrawQuill(Track& track, double seconds, Touch touch, Chance& chance) {
    // The nib holds fast to the paper and slips, hundreds of times a second, the faster the higher.
    Filter nib = BandPass(4300, 2.2, kTrackRate), paper = BandPass(1900, 1.2, kTrackRate);
    Filter soft = LowPass(6000, kTrackRate);
    std::vector<double> sound(Moment(seconds));
    double untilSlip = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(sound.size());
        const double speed = std::sin(pi * part);
        double slip = 0.06 * chance.Between(-1, 1) * speed;
        if (--untilSlip < 0) {
            slip += chance.Between(0.4, 1) * speed;
            untilSlip = kTrackRate / (180 + 420 * speed) * chance.Between(0.6, 1.4);
        }
        sound[i] = soft(7 * nib(slip) + 3 * paper(slip));
    }
    Add(track, sound, touch);
}

void Clap(Track& track, double hands, Touch touch, Chance& chance) {
    // Two palms shut in some air, which bursts out and rings a little, lower in hollow hands.
    const double hollow = 2100 - 1300 * hands + chance.Between(-120, 120);
    Filter air = BandPass(hollow, 1.6, kTrackRate), skin = BandPass(hollow * 2.3, 0.9, kTrackRate);
    Filter soft = LowPass(hollow * 2.6, kTrackRate);
    std::vector<double> sound(Moment(0.07));
    const double decay = chance.Between(0.006, 0.011);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double time = static_cast<double>(i) / kTrackRate;
        const double burst = std::min(time / 0.0006, 1.0) * std::exp(-time / decay);
        const double noise = chance.Between(-1, 1) * burst;
        sound[i] = soft(1.4 * air(noise) + 0.5 * skin(noise));
    }
    Add(track, sound, touch);
}

}  // namespace quillet
