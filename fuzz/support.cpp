#include "support.h"

#include <stdlib.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "base/idle_pump.h"
#include "base/messages.h"
#include "computer/move_choice.h"
#include "computer/opponents.h"
#include "data/scenarios.h"
#include "game/bag.h"
#include "game/game_state.h"
#include "game/validation.h"
#include "platform/headless/headless.h"
#include "play/announcements.h"
#include "play/clock.h"
#include "store/files.h"
#include "store/item_store.h"
#include "store/preferences.h"
#include "words/bonus_words.h"
#include "words/dict.h"
#include "words/word_list_file.h"

namespace quillet::fuzz {
namespace {

namespace fs = std::filesystem;

void ResetProgram() {
    headless = {};
    pump = {};
    ResetBlink();
    preferences = {};
    ClosePrefs();
    wordList = {};
    mainDict = {};
    bonusWords = {};
    BuildBonusDict(bonusWords);
    scenario = {};
    SetCurrentScenario({});
    opponentTable = {};
    game = FreshGameState();
    formedWords = {};
    ResetExchangeCounts();
    ResetVoiceTurns();
    SeedRandom(1);
    FillBag();
}

void MakeDataFolder() {
    std::string pattern = (fs::temp_directory_path() / "quillet-fuzz-XXXXXX").string();
    Require(mkdtemp(pattern.data()) != nullptr, "no temporary folder");
    SetDataFolder(pattern);
    std::atexit([] {
        std::error_code ignored;
        fs::remove_all(DataFolder(), ignored);
    });
}

Dict BuildSmallWordList() {
    Dict dict;
    MakeStore(dict, 0);
    for (const char* word :
         {"AA",    "AE",     "AI",      "AT",  "BE",     "DO",    "EEL", "EH", "EON", "FOX",  "GNU", "GO",
          "INN",   "IT",     "JO",      "KEY", "LION",   "MU",    "OAT", "OX", "QI",  "QUIZ", "RAT", "RATE",
          "RATES", "RETAIN", "RETAINS", "SEA", "SENIOR", "STARE", "TO",  "UN", "VEX", "WE",   "ZA"}) {
        AddWord(dict, word);
    }
    dict.numAdded = 0;
    return dict;
}

}  // namespace

void MakeFolder(const std::string& path) { fs::create_directories(fs::path(DataFolder()) / path); }

void WriteFile(const std::string& path, std::string_view contents) {
    std::ofstream file(fs::path(DataFolder()) / path, std::ios::binary);
    file.write(contents.data(), static_cast<std::streamsize>(contents.size()));
    file.close();
    Require(file.good(), "the temporary folder is full");
}

std::string ReadFile(const std::string& path) {
    std::ifstream file(fs::path(DataFolder()) / path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void UseSmallWordList() {
    static const Dict words = BuildSmallWordList();
    mainDict = words;
}

void UseComputerPlayers() {
    game.numPlayers = 2;
    game.players[1].name = "Ada 9";
    game.players[2].name = "Bo 3";
    for (const int p : {1, 2}) PlayerKindFromName(p);
}

void Require(bool condition, std::string_view finding) {
    if (condition) return;
    std::fprintf(stderr, "FOUND: %.*s\n", static_cast<int>(finding.size()), finding.data());
    std::abort();
}

}  // namespace quillet::fuzz

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    quillet::fuzz::MakeDataFolder();
    quillet::fuzz::SetUp();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    quillet::fuzz::ResetProgram();
    try {
        quillet::fuzz::TryInput({reinterpret_cast<const char*>(bytes), size});
    } catch (const quillet::ProgramEnd&) {  // the right answer to some files
    }
    return 0;
}
