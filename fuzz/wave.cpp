// A sound: what of it is played lies within the file, in whole samples.
#include <span>

#include "platform/shared/wave_file.h"
#include "support.h"

namespace quillet::fuzz {

void SetUp() {}

void TryInput(std::string_view input) {
    const std::span bytes(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    const std::optional<WaveSound> sound = ReadWave(bytes);
    if (!sound) return;
    const auto frame = static_cast<std::size_t>(sound->channels * sound->bitsPerSample / 8);
    Require(sound->samples.size() % frame == 0, "a sample is cut");
    Require(sound->samples.empty() ||
                (sound->samples.data() >= bytes.data() && &sound->samples.back() <= &bytes.back()),
            "a sound goes beyond its file");
    Require(sound->Milliseconds() <= input.size(),
            "a sound is longer than its bytes");  // 4,000 of them a second
}

}  // namespace quillet::fuzz
