// Files of one value: the input as a number, a text, a switch, a preference and an opponent's details.
#include "computer/opponents.h"
#include "data/scenarios.h"
#include "game/game_state.h"
#include "play/end_of_game.h"
#include "play/turns.h"
#include "store/item_store.h"
#include "store/preferences.h"
#include "support.h"

namespace quillet::fuzz {
namespace {

constexpr ItemId kItem = 400;

void ReadEveryWay() {
    ReadItemShort(scenarioStore, kItem);
    ReadItemBoolean(scenarioStore, kItem);
    const std::int32_t number = ReadItemLong(scenarioStore, kItem);
    const auto text = ReadItemText<255>(scenarioStore, kItem);
    WriteItemText(scenarioStore, kItem, text);
    Require(ReadItemText<255>(scenarioStore, kItem) == text, "a text is not what was written");
    WriteItemNumber(scenarioStore, kItem, number);
    Require(ReadItemLong(scenarioStore, kItem) == number, "a number is not what was written");
}

// The items of preferences that are not mere switches.
void UsePreferences(std::string_view input) {
    for (const char* item : {"200", "201", "2001", "2002", "3001", "4000"}) {
        WriteFile("Data/Prefs/" + std::string(item) + ".str", input);
    }
    LoadPreferences();
    ReadPlayerSetUp();
}

void UseOpponent(std::string_view input) {
    WriteFile("Opponents/Ada/300.str", input);
    WriteFile("Opponents/Ada/203.str", input);
    ListOpponents();
    UseComputerPlayers();
    LoadOpponentData();
}

}  // namespace

void SetUp() {
    MakeFolder("Data/Prefs");
    MakeFolder("Word Lists");
    MakeFolder("Scenarios/Fuzzed");
    MakeFolder("Opponents/Ada");
    WriteFile("Scenarios/Fuzzed/12345.str", "1");
    OpenPrefs();  // makes all items
    ClosePrefs();
}

void TryInput(std::string_view input) {
    SetCurrentScenario("Fuzzed");
    WriteFile("Scenarios/Fuzzed/400.str", input);
    ReadEveryWay();
    UsePreferences(input);
    preferences.timerEnabled = true;
    preferences.tellComputerToMove = true;
    UseOpponent(input);
    UseSmallWordList();
    BeginGame(true);
    FinishTurn();
    game.passCount = game.numPlayers;
    CheckEndOfGame();
}

}  // namespace quillet::fuzz
