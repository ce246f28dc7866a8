#include "platform/shared/wave_file.h"
#include "support/testing.h"

namespace quillet {
namespace {

std::string Number(std::uint32_t number, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(number >> (8 * i) & 0xFF);
    return text;
}

std::string Chunk(const std::string& name, const std::string& content) {
    return name + Number(static_cast<std::uint32_t>(content.size()), 4) + content;
}

struct Format {
    std::uint32_t coding = 1;
    std::uint32_t channels = 1;
    std::uint32_t rate = 22050;
    std::uint32_t bits = 16;
};

std::string FormatChunk(const Format& format) {
    const std::uint32_t frame = format.channels * format.bits / 8;
    return Chunk("fmt ", Number(format.coding, 2) + Number(format.channels, 2) + Number(format.rate, 4) +
                             Number(format.rate * frame, 4) + Number(frame, 2) + Number(format.bits, 2));
}

std::string File(const std::string& chunks) { return Chunk("RIFF", "WAVE" + chunks); }

std::optional<WaveSound> Read(const std::string& file) {
    return ReadWave({reinterpret_cast<const std::uint8_t*>(file.data()), file.size()});
}

TEST(WaveFile, SamplesAreFoundBehindOtherChunks) {
    // A chunk of odd length is followed by a byte that counts nowhere.
    const std::string file = File(FormatChunk({.channels = 2, .rate = 44100, .bits = 8}) +
                                  Chunk("LIST", "abc") + '\0' + Chunk("data", "\x01\x02\x03\x04"));
    const auto sound = Read(file);
    ASSERT_TRUE(sound.has_value());
    EXPECT_EQ(sound->channels, 2);
    EXPECT_EQ(sound->samplesPerSecond, 44100);
    EXPECT_EQ(sound->bitsPerSample, 8);
    EXPECT_THAT(sound->samples, ElementsAre(1, 2, 3, 4));
}

TEST(WaveFile, LengthFollowsFromTheSamples) {
    const std::string second =
        File(FormatChunk({.channels = 2}) + Chunk("data", std::string(4 * 22050, 'x')));
    EXPECT_EQ(Read(second)->Milliseconds(), 1000U);
    const std::string instant = File(FormatChunk({}) + Chunk("data", "xx"));
    EXPECT_EQ(Read(instant)->Milliseconds(), 1U);
}

TEST(WaveFile, AFileCutShortPlaysWhatThereIs) {
    const std::string file = File(FormatChunk({.channels = 2}) + Chunk("data", "abcdefghijkl"));
    EXPECT_EQ(Read(file.substr(0, file.size() - 3))->samples.size(), 8U);
    for (std::size_t size = 0; size + 12 < file.size(); ++size) {
        const auto sound = Read(file.substr(0, size));
        EXPECT_TRUE(!sound || sound->samples.empty()) << size;
    }
}

TEST(WaveFile, WhatCannotBePlayedIsRefused) {
    const std::string data = Chunk("data", "abcd");
    const std::string bad[] = {
        "",
        "RIFF",
        File(data),
        File(FormatChunk({})),
        File(data + FormatChunk({})),
        File(FormatChunk({.coding = 2}) + data),
        File(FormatChunk({.channels = 0}) + data),
        File(FormatChunk({.channels = 6}) + data),
        File(FormatChunk({.rate = 0}) + data),
        File(FormatChunk({.rate = 0xFFFFFFFF}) + data),
        File(FormatChunk({.bits = 0}) + data),
        File(FormatChunk({.bits = 24}) + data),
        File(Chunk("fmt ", "short") + data),
        Chunk("RIFX", "WAVE" + FormatChunk({}) + data),
        Chunk("RIFF", "AVI " + FormatChunk({}) + data),
    };
    for (const std::string& file : bad) EXPECT_FALSE(Read(file).has_value()) << testing::PrintToString(file);
}

}  // namespace
}  // namespace quillet
