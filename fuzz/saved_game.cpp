// A saved game: loaded, replayed, taken back to its start and played again.
#include "data/saved_game.h"
#include "computer/move_generator.h"
#include "data/scenarios.h"
#include "game/consistency.h"
#include "game/game_state.h"
#include "play/history.h"
#include "play/turns.h"
#include "store/preferences.h"
#include "support.h"

namespace quillet::fuzz {
namespace {

void ReadHistory() {
    for (int player = 1; player <= game.numPlayers; ++player) {
        for (int line = 1; line <= HistoryLineCount(player); ++line) {
            HistoryRecord(player, line);
            HistoryLine(player, line);
        }
    }
}

}  // namespace

void SetUp() {
    DetachPreferences();
    for (const char* name : {"Classic", "Quick Nine"}) {
        const std::string folder = std::string("Scenarios/") + name;
        MakeFolder(folder);
        WriteFile(folder + "/12345.str", "1");
        WriteFile(folder + "/301.str", "9224<2329114268216464221212");
    }
}

void TryInput(std::string_view input) {
    UseSmallWordList();
    WriteFile("game.qlg", input);
    preferences.timerEnabled = input.size() % 2 == 0;
    if (!LoadGame("game.qlg")) return;
    OpenGameReplay();
    ReadHistory();
    FindInconsistency(game);
    while (game.history.movesCount > 0) UndoMove();
    ReadHistory();
    if (game.history.redoCount > 0) GoToMove(1 + (game.history.redoCount + 1) / 2);
    while (game.history.redoCount > 0 && !game.gameOver) RedoMove();
    FindInconsistency(game);
    Require(SaveGame("again.qlg"), "a game that was opened cannot be saved");
    if (!game.gameOver) FinishTurn();
}

}  // namespace quillet::fuzz
