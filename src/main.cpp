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

// Gets the player's tree ready; false, when there is none to play with. Either way the player is told why.
bool PrepareData(const quillet::DataPlace& place) {
    using namespace quillet;
    if (place.shipped == place.own) return true;
    const std::string problem = RefreshUserData(place.shipped, place.own);
    const bool isPlayable = HoldsData(place.own);
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
    const bool isReady = PrepareData(place);
    if (isReady) {
        SetDataFolder(place.own);
        RunProgram(options);
    }
    EndPlatform();
    return isReady ? 0 : 1;
}
