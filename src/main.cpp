// Quillet: starts the desktop and runs the program.
#include <CLI/CLI.hpp>
#include <filesystem>

#include "platform/qt/qt_platform.h"
#include "shell/main_loop.h"
#include "store/data_folder.h"
#include "store/files.h"

int main(int argc, char** argv) {
    using namespace quillet;
    CLI::App app{"Quillet: a crossword tile game for one to four players."};
    RunOptions options;
    std::string dataFolder = FindDataFolder();
    app.add_option("GAME", options.savedGame, "A saved game (.qlg) to go on with");
    app.add_option("--zoom", options.zoom, "How many times the window is enlarged")->check(CLI::Range(1, 8));
    app.add_option("--data", dataFolder, "The folder that holds \"Word Lists\", \"Scenarios\" and the others")
        ->check(CLI::ExistingDirectory);
    CLI11_PARSE(app, argc, argv);
    if (!options.savedGame.empty()) options.savedGame = std::filesystem::absolute(options.savedGame).string();
    SetDataFolder(dataFolder);
    if (!StartPlatform(argc, argv)) return 1;
    SetProgramIcon(dataFolder + "/icons");
    RunProgram(options);
    EndPlatform();
    return 0;
}
