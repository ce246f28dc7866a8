// What the view knows besides the game: which arrangement the window has and what it showed last.
//
// Owns view. Changed by the files of view/ only; thrown away when the program ends.
#pragma once

#include "platform/window.h"
#include "view/layout.h"

namespace quillet {

enum class Direction : std::uint8_t { Left, Right, Up, Down };

struct ViewState {
    Layout layout;
    int zoom = 1;
    bool bigBoardAllowed = true;  // the display has room for it
    bool colourDisplay = true;    // else all is drawn in black, white and grey
    int paintCount = 0;           // paint requests so far: the first shows the splash
    int bagPicture = 0;           // 1..4, drawn last; 0 none yet
    int opponentMood = 1;         // 1..5, while a computer player is featured
    bool moveFlashes = false;     // the MOVE button shows its flashing picture
    bool startMarkIsNext = true;  // the next blink draws the start square's mark; else it draws it away
    Direction typingDirection = Direction::Right;
};

inline ViewState view;

}  // namespace quillet
