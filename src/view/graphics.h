// The interface's pictures, loaded from the graphics folder when the program starts and kept for the whole
// run; its fonts and colours.
//
// Owns graphics. Loaded by LoadGraphics; afterwards only read.
#pragma once

#include <array>
#include <optional>

#include "base/colours.h"
#include "base/one_based.h"
#include "game/board.h"
#include "game/letters.h"
#include "platform/canvas.h"
#include "view/layout.h"

namespace quillet {

// The pictures of one board size. Glyphs, marks and values are masks: black is ink.
struct SheetSet {
    Picture letters;  // 9 x 5 cells
    Picture values;   // 11 cells in a row
    Picture tile;     // the face of a tile
};

struct Graphics {
    Picture info;
    OneBased<Picture, 4> bag;  // by how full it is: 1 full, 4 empty
    Picture bagBlackAndWhite;
    Picture rack;
    Picture note;
    Picture smallNote;
    Picture mix;
    Picture mixPressed;
    Picture done;
    Picture donePressed;
    Picture move;
    Picture movePressed;
    Picture moveFlashing;
    Picture logo;
    Picture lock;
    Picture background;  // patterns
    Picture shadow;
    Picture popUp;
    SheetSet big;
    SheetSet small;
    // The scenario's pictures of the square kinds; none: the kind is drawn plainly.
    std::array<std::optional<Picture>, kSquareKinds.size()> squares;

    const SheetSet& Sheets(int pitch) const { return pitch > kSmallBoard.pitch ? big : small; }
};

inline Graphics graphics;

// Loads every picture of the interface. Fatal when one is missing or a sheet has the wrong size.
void LoadGraphics();

PictureSizes SizesOfPictures();

// Cells of the letter sheets with that pitch: the glyph of a code, the mark of the start square, the mark of
// square kind 1..8; of the value sheets, that of value 0..10.
Rect GlyphCell(int pitch, LetterCode code);
Rect StartMarkCell(int pitch);
Rect KindMarkCell(int pitch, SquareKind kind);
Rect ValueCell(int pitch, int value);

// --- Fonts and colours ---

constexpr Font kTextFont{"Arial", 8};
constexpr Font kViewFont{"Courier New", 9};
constexpr Font kSmallViewFont{"Courier New", 8};
Font PanelFont();                      // of the status lines
Colour PanelColour();                  // of the status lines over the information panel
constexpr Colour kRed = 0xFF0000;      // the letter of a played blank
constexpr Colour kDarkRed = 0xC80000;  // overtime
constexpr Colour kGrey = 0x808080;     // plain squares without a picture, a monochrome background

}  // namespace quillet
