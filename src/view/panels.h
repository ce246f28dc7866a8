// Drawing the panels around the board: letters left and bag, the information panel with its six lines, the
// table of the players with the clock, the buttons. Each draws itself at once, from the game as it stands.
#pragma once

#include <string_view>

namespace quillet {

void DrawLettersLeft();  // the box
void DrawBag();
void DrawInfoPanel();
void DrawStatusLine(int line, std::string_view text);  // 1..6, with what lies behind it
void DrawNotePanel();
void DrawClockDigits();
void DrawMixButton(bool pressed);
void DrawDoneButton(bool pressed);  // DONE or MOVE, whoever is to move

// Is the button there to be pressed? Both are, while a game runs; MOVE only when computers wait to be told.
bool MixButtonShows();
bool DoneButtonShows();

// Are there bonus words to look at?
bool BonusWordsShow();

}  // namespace quillet
