#include "platform/shared/wave_file.h"

#include <algorithm>
#include <string_view>

namespace quillet {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kFormatSize = 16;  // of a format chunk, at least
constexpr std::uint32_t kUncompressed = 1;

std::uint32_t Number(Bytes bytes, std::size_t at, std::size_t size) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i) number |= std::uint32_t{bytes[at + i]} << (8 * i);
    return number;
}

bool Is(Bytes bytes, std::size_t at, std::string_view name) {
    return bytes.size() >= at + name.size() &&
           std::ranges::equal(bytes.subspan(at, name.size()), name, {}, {},
                              [](char character) { return static_cast<std::uint8_t>(character); });
}

bool TakeFormat(Bytes chunk, WaveSound& sound) {
    if (chunk.size() < kFormatSize || Number(chunk, 0, 2) != kUncompressed) return false;
    const std::uint32_t channels = Number(chunk, 2, 2);
    const std::uint32_t rate = Number(chunk, 4, 4);
    const std::uint32_t bits = Number(chunk, 14, 2);
    if (channels < 1 || channels > 2 || rate < 4000 || rate > 192000 || (bits != 8 && bits != 16))
        return false;
    sound.channels = static_cast<int>(channels);
    sound.samplesPerSecond = static_cast<int>(rate);
    sound.bitsPerSample = static_cast<int>(bits);
    return true;
}

std::size_t FrameSize(const WaveSound& sound) {
    return static_cast<std::size_t>(sound.channels * sound.bitsPerSample / 8);
}

}  // namespace

std::uint32_t WaveSound::Milliseconds() const {
    const std::uint64_t frames = samples.size() / FrameSize(*this);
    const auto rate = static_cast<std::uint64_t>(samplesPerSecond);
    return static_cast<std::uint32_t>((frames * 1000 + rate - 1) / rate);
}

std::optional<WaveSound> ReadWave(Bytes file) {
    constexpr std::size_t kFileHeader = 12;
    constexpr std::size_t kChunkHeader = 8;
    if (!Is(file, 0, "RIFF") || !Is(file, 8, "WAVE")) return std::nullopt;
    WaveSound sound;
    bool hasFormat = false;
    for (std::size_t at = kFileHeader; at + kChunkHeader <= file.size();) {
        const std::size_t size = Number(file, at + 4, 4);
        const Bytes rest = file.subspan(at + kChunkHeader);
        const Bytes chunk = rest.first(std::min(size, rest.size()));
        if (Is(file, at, "fmt ")) {
            if (!TakeFormat(chunk, sound)) return std::nullopt;
            hasFormat = true;
        } else if (Is(file, at, "data") && hasFormat) {
            sound.samples = chunk.first(chunk.size() - chunk.size() % FrameSize(sound));
            return sound;
        }
        at += kChunkHeader + chunk.size() + size % 2;
    }
    return std::nullopt;
}

}  // namespace quillet
