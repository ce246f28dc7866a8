// The hand in the window: where a click goes, the buttons, and tiles dragged between rack, board and bag.
//
// Judges no move: it lives in the game's Placed squares, racks and thrownBack until DONE.
#pragma once

#include "platform/window.h"

namespace quillet {

enum class ClickResult : std::uint8_t {
    Done,        // everything that the click asks for
    FinishTurn,  // DONE or MOVE was pressed; the caller finishes the turn
};
ClickResult HandleClick(const Message& click);

void HandleArrow(Key key);

}  // namespace quillet
