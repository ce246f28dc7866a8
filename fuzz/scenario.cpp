// A scenario's folder: the input is its items, one after the other, each ended by the byte 255. Loaded, and
// then two computers play the beginning of a game.
#include <algorithm>

#include "data/saved_game.h"
#include "data/scenarios.h"
#include "game/game_state.h"
#include "play/history.h"
#include "play/turns.h"
#include "store/preferences.h"
#include "support.h"
#include "words/word_list_file.h"

namespace quillet::fuzz {
namespace {

constexpr char kItemEnd = '\xFF';
constexpr int kTurns = 12;

// tools/fuzz joins the items of the shipped scenarios in the same order.
constexpr int kItems[] = {300, 301, 350, 400, 401, 402, 500, 501, 600, 601, 602, 700, 199};

void WriteItems(std::string_view input) {
    for (const int item : kItems) {
        const std::size_t size = std::min(input.find(kItemEnd), input.size());
        WriteFile("Scenarios/Fuzzed/" + std::to_string(item) + ".str", input.substr(0, size));
        input.remove_prefix(std::min(size + 1, input.size()));
    }
}

}  // namespace

void SetUp() {
    DetachPreferences();
    MakeFolder("Word Lists");
    MakeFolder("Scenarios/Fuzzed");
    WriteFile("Scenarios/Fuzzed/12345.str", "1");
}

void TryInput(std::string_view input) {
    WriteItems(input);
    SetCurrentScenario("Fuzzed");
    LoadScenario();
    ApplyScenarioWordList(scenario.requestedWordList);
    ReadAboutText();
    UseSmallWordList();
    UseComputerPlayers();
    BeginGame(true);
    for (int turn = 0; turn < kTurns && !game.gameOver; ++turn) FinishTurn();
    Require(SaveGame("game.qlg"), "the game cannot be saved");
    Require(LoadGame("game.qlg"), "the game that was saved cannot be read");
    OpenGameReplay();
    SaveScenarioLetters();
    SaveScenarioBoard(false);
    SaveBonusWords();
}

}  // namespace quillet::fuzz
