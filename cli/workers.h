// Sharing work out to processes.
#pragma once

#include <functional>
#include <vector>

#include "game_report.h"

namespace quillet {

// Plays games 0 to games - 1 with `play` in that many processes (in this one for 1 job) and gives the
// results in the order of the games. `progress` hears after each game how many are done. A worker that
// fails ends the command.
std::vector<GameResult> PlayGames(int games, int jobs, const std::function<GameResult(int index)>& play,
                                  const std::function<void(int done)>& progress);

}  // namespace quillet
