#include "wave.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string_view>

namespace quillet {
namespace {

constexpr double kFullScale = 32767;
constexpr std::uint32_t kFormatSize = 16, kPcm = 1, kBytesOfSample = 2;

void Put(std::string& bytes, std::uint32_t number, int size) {
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> 8 * i & 255);
}

std::uint32_t Get(std::string_view bytes, std::size_t at, int size) {
    std::uint32_t number = 0;
    for (int i = size - 1; i >= 0; --i) {
        number = number << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
    }
    return number;
}

// The contents of the chunk of that name; empty when there is none, or not all of it.
std::string_view Chunk(std::string_view file, std::string_view name) {
    std::size_t at = 12;
    while (at + 8 <= file.size()) {
        const std::size_t size = Get(file, at + 4, 4), rest = file.size() - at - 8;
        if (size > rest) break;
        if (file.substr(at, 4) == name) return file.substr(at + 8, size);
        at += 8 + size + size % 2;
    }
    return {};
}

std::string Header(const Wave& wave, std::uint32_t dataSize) {
    const auto rate = static_cast<std::uint32_t>(wave.rate);
    const std::uint32_t momentSize = static_cast<std::uint32_t>(wave.channels) * kBytesOfSample;
    std::string bytes = "RIFF";
    Put(bytes, 36 + dataSize, 4);
    bytes += "WAVEfmt ";
    Put(bytes, kFormatSize, 4);
    Put(bytes, kPcm, 2);
    Put(bytes, static_cast<std::uint32_t>(wave.channels), 2);
    Put(bytes, rate, 4);
    Put(bytes, rate * momentSize, 4);
    Put(bytes, momentSize, 2);
    Put(bytes, kBytesOfSample * 8, 2);
    bytes += "data";
    Put(bytes, dataSize, 4);
    return bytes;
}

}  // namespace

std::optional<Wave> ReadWave(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    const std::string file(std::istreambuf_iterator<char>(stream), {});
    if (file.size() < 12 || !file.starts_with("RIFF") || file.substr(8, 4) != "WAVE") return std::nullopt;
    const std::string_view format = Chunk(file, "fmt "), data = Chunk(file, "data");
    if (format.size() < kFormatSize || Get(format, 0, 2) != kPcm ||
        Get(format, 14, 2) != kBytesOfSample * 8) {
        return std::nullopt;
    }
    Wave wave{static_cast<int>(Get(format, 4, 4)), static_cast<int>(Get(format, 2, 2)), {}};
    if (wave.rate < 1 || wave.channels < 1 || wave.channels > 2) return std::nullopt;
    for (std::size_t at = 0; at + kBytesOfSample <= data.size(); at += kBytesOfSample) {
        const auto sample = static_cast<std::int16_t>(Get(data, at, 2));
        wave.samples.push_back(static_cast<float>(sample / (kFullScale + 1)));
    }
    return wave;
}

bool WriteWave(const std::string& path, const Wave& wave) {
    std::string bytes = Header(wave, static_cast<std::uint32_t>(wave.samples.size()) * kBytesOfSample);
    for (const float sample : wave.samples) {
        const long value = std::lround(std::clamp(static_cast<double>(sample), -1.0, 1.0) * kFullScale);
        Put(bytes, static_cast<std::uint32_t>(value), kBytesOfSample);
    }
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    return static_cast<bool>(file.flush());
}

}  // namespace quillet
