// The main window's size and place, and how they change.
#pragma once

#include <optional>

namespace quillet {

// Sees what display there is and chooses the board size. A zoom of nothing is the comfortable one. To be
// called once, before the window is made.
void ChooseBoardSize(std::optional<int> zoom);

// Makes and shows the window, with the splash on it, and then loads what it is drawn with. Fatal when a
// picture is missing.
void OpenMainWindow();

// Writes where the window stands to the preferences.
void RememberWindowPlace();

// The other board size, if the display has room for the big board.
void SwitchBoardSize();

// The rack above or below the board, as the preference now says.
void ArrangeWindow();

}  // namespace quillet
