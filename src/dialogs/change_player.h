// Changes a player of the running game.
#pragma once

namespace quillet {

// Asks who plays on as player 1..4; false when nothing was changed. The window is left as it is.
bool ChangeOnePlayer(int player);

}  // namespace quillet
