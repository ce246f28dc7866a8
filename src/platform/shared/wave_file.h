// Wave files: what is to be played, out of the bytes of a file that may be damaged.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace quillet {

// Samples as they are stored: 8 bits unsigned or 16 bits signed, little-endian, the channels in turn.
struct WaveSound {
    int channels = 1;                       // 1..2
    int samplesPerSecond = 0;               // 4,000..192,000
    int bitsPerSample = 8;                  // 8 or 16
    std::span<const std::uint8_t> samples;  // a whole number of them; of the file's bytes

    std::uint32_t Milliseconds() const;  // rounded up
};

// The sound of a file; none when it is not an uncompressed wave file of such a kind. Of a file that is cut
// short, what there is of it.
std::optional<WaveSound> ReadWave(std::span<const std::uint8_t> file);

}  // namespace quillet
