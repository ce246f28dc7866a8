// A statistics file: read, and two games recorded over it.
#include "data/statistics.h"

#include "game/game_state.h"
#include "store/preferences.h"
#include "support.h"

namespace quillet::fuzz {

void SetUp() {
    DetachPreferences();
    MakeFolder("Statistics");
}

void TryInput(std::string_view input) {
    UseComputerPlayers();
    game.players[1].score = 312;
    game.players[2].score = -7;
    game.history.records[1] = {.player = 1, .letters = "CAT", .score = 312};
    game.history.movesCount = 1;
    WriteFile("Statistics/" + std::string(MatchName().View()), input);
    if (!ReadStatisticsTotals(MatchName())) return;
    for (int i = 0; i < 2; ++i) RecordGameStatistics();
    Require(ReadStatisticsTotals(MatchName()).has_value(), "what was recorded cannot be read");
}

}  // namespace quillet::fuzz
