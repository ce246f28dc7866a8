// Drawing squares, tiles and the rack. Everything is drawn at once on the window's canvas, from the game as
// it stands, without a sound.
#pragma once

#include "game/game_state.h"
#include "platform/canvas.h"

namespace quillet {

// The board's frame, lines and squares with what lies on them; rows outside the area are left out.
void DrawBoard(const Rect& area);

// One square with what lies on it.
void DrawBoardSquare(int row, int col);

// A tile's face with its letter on a square's or slot's rectangle; nothing for codes below "A". The letters
// of tiles are those of the pitch.
struct TileFace {
    LetterCode code = 0;
    bool showsValue = true;
};
void DrawTile(Canvas& canvas, const Rect& square, int pitch, const TileFace& face);

// A tile on the board; its value as the player's preference says.
void DrawTileOnBoard(int row, int col, LetterCode code);

// A square of that kind on any rectangle.
void DrawSquareKind(const Rect& square, SquareKind kind);

// The start square's mark over what the square shows; and the square without it.
void DrawStartMark(int row, int col);
void DrawSquareWithoutStartMark(int row, int col);

// The rack's picture and, once there is a game, the current player's tiles.
void DrawRackPanel();
void DrawRack();  // its tiles
void DrawRackSlot(int player, int slot, LetterCode code);
void EraseRackSlot(int slot);

// How a tile of that player's rack looks: computers may hide their letters.
TileFace RackTileFace(int player, LetterCode code);

}  // namespace quillet
