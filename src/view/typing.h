// Building a move from the keyboard: letters go on from the tiles placed so far, Backspace takes the last one
// back, arrows turn the direction.
#pragma once

#include "view/view_state.h"

namespace quillet {

// A typed letter or Backspace; any other character does nothing. `pointer` is where the first letter goes.
void TypeCharacter(char character, Point pointer);

void TypeArrow(Direction direction);

}  // namespace quillet
