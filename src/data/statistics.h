// The statistics file kept for each set of players, in their order: a summary of fixed size, written anew
// after each game, and one line for every game (docs/formats/statistics.md).
//
// Reads the game model; owns nothing.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "base/one_based.h"
#include "game/game_state.h"

namespace quillet {

struct PlayerTotals {
    std::int32_t wins = 0;
    std::int32_t totalScore = 0;
    std::int32_t bestGame = std::numeric_limits<std::int32_t>::min();
    std::int32_t worstGame = std::numeric_limits<std::int32_t>::max();
    std::int32_t totalMoves = 0;  // turns
    std::int32_t bestMove = std::numeric_limits<std::int32_t>::min();
};

struct StatisticsTotals {
    std::int32_t games = 0;
    std::int32_t drawn = 0;                         // games without a single winner
    OneBased<PlayerTotals, kMaxPlayers> players{};  // as many as the game has
};

// The file's name in its folder is the MatchName.
bool StatisticsFileExists(std::string_view matchName);

// The totals of the file of that MatchName, for as many players as the game has. None when it cannot be
// opened or, with a warning, when it cannot be read.
std::optional<StatisticsTotals> ReadStatisticsTotals(std::string_view matchName);

// Adds the game that has just ended to its players' file. Warns when that cannot be done; the file then
// stays as it was.
void RecordGameStatistics();

// A quotient with one decimal, rounded half away from zero; "-" when there is nothing to divide by.
std::string OneDecimal(std::int64_t dividend, std::int64_t divisor);

}  // namespace quillet
