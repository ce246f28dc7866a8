// The shipped sounds: that each is there, can be played everywhere, keeps nobody waiting, and is as loud as
// its fellows.
#include "sounds/wave.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <numbers>
#include <string>
#include <vector>

#include "sounds/levels.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;

// What a sound must be. Loudness in LUFS, of the loudest 400 ms.
struct Expected {
    std::string file;  // in assets
    double maxSeconds;
    double loudness;
    int rate;
};

constexpr double kUsual = -20;

std::vector<Expected> AllSounds() {
    // The game waits for these in the middle of a turn, for the tile at every single one.
    std::vector<Expected> sounds = {{"tile", 0.06, -30, 44100},       {"mix", 0.6, -25, 44100},
                                    {"bingo", 1.2, kUsual, 44100},    {"bonus", 1.2, kUsual, 44100},
                                    {"start", 2.5, kUsual, 44100},    {"quit", 1.5, kUsual, 44100},
                                    {"tiedgame", 2.5, kUsual, 44100}, {"clapping", 2.5, kUsual, 44100}};
    for (Expected& sound : sounds) sound.file = "Data/Sounds/" + sound.file + ".wav";
    for (const auto& opponent : fs::directory_iterator(fs::path(QUILLET_ASSETS) / "Opponents")) {
        for (int voice = 8001; voice <= 8006; ++voice) {
            sounds.push_back(
                {"Opponents/" + opponent.path().filename().string() + "/" + std::to_string(voice) + ".wav",
                 2.2, kUsual, 22050});
        }
    }
    return sounds;
}

Wave Load(const std::string& file) {
    auto wave = ReadWave(std::string(QUILLET_ASSETS) + "/" + file);
    EXPECT_TRUE(wave) << "missing, or not 16-bit PCM";
    return std::move(wave).value_or(Wave{1, 1, {0}});
}

// The highest sample between two moments.
float HighestIn(const Wave& wave, std::size_t from, std::size_t to) {
    const auto at = [&](std::size_t moment) {
        return wave.samples.begin() + static_cast<std::ptrdiff_t>(moment) * wave.channels;
    };
    return std::abs(
        *std::max_element(at(from), at(to), [](float a, float b) { return std::abs(a) < std::abs(b); }));
}

TEST(Sounds, AreShortAlikeInLoudnessAndSilentAtTheirEnds) {
    for (const Expected& sound : AllSounds()) {
        SCOPED_TRACE(sound.file);
        const Wave wave = Load(sound.file);
        EXPECT_EQ(wave.rate, sound.rate);
        EXPECT_LE(wave.Seconds(), sound.maxSeconds);
        EXPECT_NEAR(LoudestMoment(wave), sound.loudness, 0.5);
        EXPECT_LE(PeakLevel(wave), -1.9) << "near clipping";
        ASSERT_GT(wave.Moments(), 2U);
        EXPECT_LT(HighestIn(wave, 0, 1), 0.003F) << "clicks at the start";
        EXPECT_LT(HighestIn(wave, wave.Moments() - 2, wave.Moments()), 0.003F) << "clicks at the end";
    }
}

// Whoever places a tile hears it at once.
TEST(Sounds, TileClickIsHeardAtOnce) {
    const Wave tile = Load("Data/Sounds/tile.wav");
    const auto soon = static_cast<std::size_t>(0.004 * tile.rate);
    ASSERT_GT(tile.Moments(), soon);
    EXPECT_GT(HighestIn(tile, 0, soon), HighestIn(tile, soon, tile.Moments()) * 0.7F);
}

// The measure itself: a tone of 997 Hz at full scale on one of two loudspeakers is -3.01 LUFS, on both 3 dB
// more, and half as high 6 dB less.
TEST(Sounds, AreMeasuredAsTheStandardSays) {
    Wave tone{48000, 1, {}};
    for (int i = 0; i < 48000; ++i) {
        tone.samples.push_back(static_cast<float>(std::sin(2 * std::numbers::pi * 997 * i / 48000)));
    }
    EXPECT_NEAR(LoudestMoment(tone), 0, 0.05);
    EXPECT_NEAR(PeakLevel(tone), 0, 0.01);
    for (float& sample : tone.samples) sample /= 2;
    EXPECT_NEAR(LoudestMoment(tone), -6.02, 0.05);
    EXPECT_NEAR(PeakLevel(tone), -6.02, 0.01);
}

}  // namespace
}  // namespace quillet
