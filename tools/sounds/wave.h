// Sounds in memory and wave files, as the makers of the sounds and their test need them. A wave holds samples
// from -1 to 1, for each moment one of every channel; files are 16-bit PCM, and nothing else is read.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillet {

struct Wave {
    int rate = 44100;  // moments a second
    int channels = 1;
    std::vector<float> samples;

    std::size_t Moments() const { return samples.size() / static_cast<std::size_t>(channels); }
    double Seconds() const { return static_cast<double>(Moments()) / rate; }
};

// None when there is no such file, or it is no 16-bit PCM wave of one or two channels that holds all it says.
std::optional<Wave> ReadWave(const std::string& path);

// Samples beyond -1 and 1 are cut. False when the file cannot be written.
bool WriteWave(const std::string& path, const Wave& wave);

}  // namespace quillet
