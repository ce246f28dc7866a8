#include "data.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include "command.h"
#include "data/saved_game.h"
#include "data/scenarios.h"
#include "platform/headless/headless.h"
#include "play/history.h"
#include "store/data_folder.h"
#include "store/files.h"
#include "store/item_store.h"
#include "words/graph_check.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;

void UseDataFolder(const std::string& folder) {
    if (!HoldsData(folder)) throw CommandFailed{folder + " holds no folder \"Word Lists\""};
    SetDataFolder(folder);
}

bool IsPath(const std::string& nameOrPath) {
    return nameOrPath.find('/') != std::string::npos || nameOrPath.ends_with(".qld");
}

}  // namespace

void AddDataOption(CLI::App& app) {
    scenarioStore.shared = true;  // the companion only looks, and may look at what is installed for everybody
    SetDataFolder(FindDataFolder());
    app.add_option_function<std::string>("--data", UseDataFolder,
                                         "Folder that holds the folder \"Word Lists\"")
        ->type_name("FOLDER");
}

void LoadScenarioNamed(const std::string& name) {
    if (!ScenarioExists(name)) throw CommandFailed{"there is no scenario \"" + name + "\""};
    SetCurrentScenario(name);
    LoadScenario();
}

std::string WordsToPlayWith(const std::string& words) {
    if (!words.empty()) return words;
    return scenario.requestedWordList.empty() ? "Words" : std::string(scenario.requestedWordList.View());
}

void OpenGame(const std::string& path) {
    headless.messages.clear();
    if (!LoadGame(SystemPath(path))) throw CommandFailed{headless.messages.back().text};
    OpenGameReplay();
}

void AddWordsOption(CLI::App& command, std::string& words) {
    command
        .add_option("--words", words,
                    "Word list: its name, or a .qld file; without it that of the scenario, or Words")
        ->type_name("LIST");
}

Dict ReadWords(const std::string& nameOrPath) {
    const std::string path =
        IsPath(nameOrPath) ? SystemPath(nameOrPath) : std::string(WordListPath(nameOrPath).View());
    std::optional<Dict> dict = ReadDict(path, nameOrPath);
    if (!dict) throw CommandFailed{"cannot open word list " + nameOrPath};
    if (const auto problem = FindBrokenInvariant(*dict)) throw CommandFailed{nameOrPath + ": " + *problem};
    return *std::move(dict);
}

void LoadWords(const std::string& nameOrPath) {
    InstallDict(mainDict, ReadWords(nameOrPath));
    wordList.current = WordListName(fs::path(nameOrPath).stem().string());
}

std::string ReadWholeFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    if (file.peek() != std::ifstream::traits_type::eof()) content << file.rdbuf();
    if (!file.is_open() || file.bad() || fs::is_directory(path)) throw CommandFailed{"cannot read " + path};
    return std::move(content).str();
}

void MakeFolder(const std::string& path) {
    std::error_code error;
    fs::create_directories(path, error);
    if (!fs::is_directory(path, error)) throw CommandFailed{"cannot make the folder " + path};
}

std::string SystemPath(const std::string& path) { return fs::absolute(path).string(); }

}  // namespace quillet
