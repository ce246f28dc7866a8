// Makes the sounds that the game ships:
//
//   make_sounds pieces FOLDER                     writes the game's own sounds
//   make_sounds voice SPOKEN SIZE MANNER RESULT   makes an opponent's voice of spoken words (voices.h)
//   make_sounds table ASSETS                      prints docs/sounds.md: how long and loud all of them are
//
// Run it by tools/make_sounds and tools/make_voices.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "levels.h"
#include "pieces.h"
#include "voices.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;
using Arguments = std::span<char*>;

constexpr double kLongestVoice = 2.2;  // seconds: the game waits for it

bool Fail(const char* what, const std::string& path) {
    std::fprintf(stderr, "%s %s\n", what, path.c_str());
    return false;
}

bool Write(const fs::path& path, const Wave& wave) {
    return WriteWave(path.string(), wave) || Fail("Could not write", path.string());
}

bool MakePieces(Arguments arguments) {
    fs::create_directories(arguments[0]);
    for (const Piece& piece : Pieces()) {
        if (!Write(fs::path(arguments[0]) / (std::string(piece.file) + ".wav"), MakeWave(piece)))
            return false;
    }
    return true;
}

bool MakeVoiceFile(Arguments arguments) {
    const auto spoken = ReadWave(arguments[0]);
    if (!spoken || spoken->channels != 1) return Fail("Not a wave file with one channel:", arguments[0]);
    const double size = std::strtod(arguments[1], nullptr);
    if (size < 0.5 || size > 2) return Fail("Not a size of a speaker, 0.5 to 2:", arguments[1]);
    if (!IsManner(arguments[2])) return Fail("Not a manner of speaking:", arguments[2]);
    const Wave voice = MakeVoice(*spoken, size, arguments[2]);
    if (voice.Seconds() > kLongestVoice) return Fail("Says too much for 2.2 seconds:", arguments[3]);
    return Write(arguments[3], voice);
}

// Sorted by folder and name.
std::vector<fs::path> WavesBelow(const fs::path& folder) {
    std::vector<fs::path> waves;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".wav") waves.push_back(entry.path());
    }
    std::ranges::sort(waves);
    return waves;
}

bool PrintTable(const char* title, const fs::path& folder) {
    std::printf("\n## %s\n\n| file | seconds | channels | rate | peak, dB | loudness, LUFS |\n", title);
    std::printf("|---|--:|--:|--:|--:|--:|\n");
    for (const fs::path& path : WavesBelow(folder)) {
        const auto wave = ReadWave(path.string());
        if (!wave) return Fail("Not a wave file:", path.string());
        std::printf("| `%s` | %.2f | %d | %d | %.1f | %.1f |\n", path.lexically_relative(folder).c_str(),
                    wave->Seconds(), wave->channels, wave->rate, PeakLevel(*wave), LoudestMoment(*wave));
    }
    return true;
}

bool PrintTables(Arguments arguments) {
    std::printf(
        "# Sounds\n\n"
        "All wave files that are shipped, as `tools/make_sounds` and `tools/make_voices` measured them. The\n"
        "loudness is that of the loudest 400 ms, as ITU-R BS.1770 weighs it, one channel coming out of two\n"
        "loudspeakers; silence belongs to sounds that are shorter. Music, applause and voices are at -20; "
        "what\n"
        "sounds at every mixing is softer, and the click of every tile much softer. How to add a voice:\n"
        "[add-an-opponent.md](add-an-opponent.md).\n");
    const fs::path assets = arguments[0];
    return PrintTable("The game (`Data/Sounds`)", assets / "Data" / "Sounds") &&
           PrintTable("Voices (`Opponents`)", assets / "Opponents");
}

struct Command {
    std::string_view name;
    std::size_t arguments;
    bool (*run)(Arguments);
};
constexpr Command kCommands[] = {
    {"pieces", 1, MakePieces}, {"voice", 4, MakeVoiceFile}, {"table", 1, PrintTables}};

}  // namespace
}  // namespace quillet

int main(int argc, char** argv) {
    const std::span<char*> arguments(argv + 1, argv + std::max(argc, 1));
    for (const quillet::Command& command : quillet::kCommands) {
        if (arguments.size() == command.arguments + 1 && arguments[0] == command.name) {
            return command.run(arguments.subspan(1)) ? 0 : 1;
        }
    }
    std::fprintf(stderr,
                 "usage: make_sounds pieces FOLDER\n"
                 "       make_sounds voice SPOKEN SIZE MANNER RESULT\n"
                 "       make_sounds table ASSETS\n");
    return 2;
}
