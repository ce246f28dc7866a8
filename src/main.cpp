// Quillet: starts the desktop and runs the program.
#include <CLI/CLI.hpp>
#include <filesystem>

#include "base/messages.h"
#include "platform/message_box.h"
#include "platform/qt/qt_platform.h"
#include "shell/main_loop.h"
#include "store/data_folder.h"
#include "store/files.h"
#include "store/user_data.h"

namespace {

constexpr const char* kNoData =
    "Quillet does not find its word lists and scenarios.  Start it where it was installed or unpacked, "
    "or tell with --data where they are.";

// Gets the player's tree ready. What is returned tells the player why that failed; empty when it did not.
std::string PrepareData(const quillet::DataPlace& place) {
    if (!quillet::HoldsData(place.shipped)) return kNoData;
    return place.shipped == place.own ? "" : quillet::RefreshUserData(place.shipped, place.own);
}

// Is there a tree to play with? Either way the player is told what is wrong.
bool IsPlayable(const quillet::DataPlace& place) {
    using namespace quillet;
    const std::string problem = PrepareData(place);
    const bool isPlayable = problem.empty() || MayBePlayedIn(place.own);
    if (!problem.empty()) {
        ShowMessageBox(isPlayable ? BoxKind::Warning : BoxKind::Fatal, ResourceString(StringId::ProgramTitle),
                       problem);
    }
    return isPlayable;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace quillet;
    CLI::App app{"Quillet: a crossword tile game for one to four players."};
    RunOptions options;
    std::string dataFolder;
    app.add_option("GAME", options.savedGame, "A saved game (.qlg) to go on with");
    app.add_option("--zoom", options.zoom, "How many times the window is enlarged")->check(CLI::Range(1, 8));
    app.add_option("--data", dataFolder,
                   "Play in this folder, which holds \"Word Lists\", \"Scenarios\" and the others")
        ->check(CLI::ExistingDirectory);
    app.set_version_flag("--version", "Quillet " QUILLET_VERSION);
    CLI11_PARSE(app, argc, argv);
    if (!options.savedGame.empty()) options.savedGame = std::filesystem::absolute(options.savedGame).string();
    const DataPlace place = dataFolder.empty() ? FindDataPlace() : DataPlace{dataFolder, dataFolder};
    if (!StartPlatform(argc, argv)) return 1;
    SetProgramIcon(place.shipped + "/icons");
    // What is missing in a folder that was named, is told when it is wanted.
    const bool isReady = !dataFolder.empty() || IsPlayable(place);
    if (isReady) {
        SetDataFolder(place.own);
        RunProgram(options);
    }
    EndPlatform();
    return isReady ? 0 : 1;
}
