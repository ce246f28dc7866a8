// What the rules ask of the screen, the loudspeaker and the person. Only numbers, letters and texts cross
// this seam. The window implements it; base/silent ignores it; tests record it. One implementation is
// chosen when linking.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "base/board_position.h"

namespace quillet {

// Status lines. `line` is 1..6, 1 at the top.
void ShowStatusLine(int line, std::string_view text);

// Single squares. A letter is a tile code, "[" for a blank.
void DrawSquare(int row, int col);  // without its tile
void DrawBoardTile(int row, int col, char letter);
void DrawPlayedBlank(int row, int col);  // the letter a played blank stands for, over its blank glyph
void FlashSquares(std::span<const BoardPosition> squares);  // shown inverted and normal, twice

// Larger areas, redrawn from the game as it stands.
void RefreshForTurn();      // a turn begins: opponent's picture, DONE or MOVE, the panels
void UpdateScorePreview();  // the live "Score = " line while a human arranges tiles
void RedrawRack();          // the current player's rack, its empty places too
void RedrawLettersLeft();   // the box of that name and the picture of the bag
void FlashLettersLeft();    // the box shown inverted and normal, twice
// A player's move is made and the next one's turn begins: that player's moves and score, the rack, the
// buttons, the letters left.
void RedrawAfterMove(int player);
void RedrawPanels();  // every player's row, the clock, the information panel
void RedrawWindow();

// The clock, as the timer option, the time limit and game.turnSeconds have it.
void RedrawClock();        // all of its row, which is bare while the timer is off
void RedrawClockDigits();  // when nothing else of it has changed

// What blinks about once a second.
void ToggleMovePicture();  // the MOVE button changes to its other picture
void BlinkStartMark();     // the start square's mark shows or vanishes; a turn begins with its showing

// The computer player to move shows one of its opponent's pictures: 2 pleased, 3 displeased.
void ShowOpponentMood(int mood);

// The pictures of the square kinds, kept in that folder of the program's. What has none is drawn plainly.
void LoadSquarePictures(std::string_view scenarioFolder);
void SaveSquarePictures(std::string_view scenarioFolder);

void ShowWaitCursor();
void ShowArrowCursor();

// The small window of a long word-list operation: four lines, 1 at the top, and a Cancel button, which sets
// the pump's abortRequested. At most one is open; lines and progress are for the open one.
void OpenStatus(std::string_view line1, std::string_view line2, std::string_view line3,
                std::string_view line4);
void SetStatusWindowLine(std::string_view text, int line);
void SetStatusProgress(std::uint32_t done, std::uint32_t total);  // a bar in the place of line 4
void CloseStatus();

// Plays a wave file to its end: in the sounds folder, or else relative to the opponents' folder. Silent
// when sounds are off or the file is missing.
void PlaySoundFile(bool inSoundsFolder, std::string_view name);

// Likewise, but only starts it.
void StartSoundFile(bool inSoundsFolder, std::string_view name);

// Asks which letter the blank placed on that square stands for; none when the player cancels.
std::optional<char> AskBlankLetter(int row, int col);

// The dialog in which the players of a new game are chosen; false when cancelled.
bool ChoosePlayers();

// Asks who plays on as player 1..4 of the running game; false when nothing was changed.
bool ChangeOnePlayer(int player);

// Is the mouse pointer over the "Statistics" label?
bool PointerIsOverStatistics();

}  // namespace quillet
