// Does the game model hold together? Asserted after each action in debug builds and checked by tests.
#pragma once

#include <optional>
#include <string>

#include "game/game_state.h"

namespace quillet {

// The first thing that does not fit, in plain English; none when all is well. Checked for a game that was
// started: tiles on the board, on racks, in the bag and thrown back make the full set; each rack counts
// its tiles (those placed or thrown back this turn included) and holds at most 7; each score is the sum
// of the player's moves and final adjustments.
std::optional<std::string> FindInconsistency(const GameState& state);

inline bool IsConsistent(const GameState& state) { return !FindInconsistency(state).has_value(); }

}  // namespace quillet
