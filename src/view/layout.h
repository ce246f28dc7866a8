// Where everything stands in the window: the two board sizes, the rectangles of every panel in both rack
// placements, and the window's own place on the screen.
//
// Pure geometry: sizes and wishes in, rectangles out, all in units of the client area (platform/geometry.h).
// Nothing here draws and no other module works out a rectangle of its own.
#pragma once

#include <optional>

#include "base/board_position.h"
#include "base/one_based.h"
#include "game/game_state.h"
#include "platform/geometry.h"
#include "platform/window.h"

namespace quillet {

// The two sizes of the board. Everything on board and rack derives from the pitch: squares are pitch - 1
// wide, with a line of 1 between them.
struct BoardSizeInfo {
    int pitch;
    Size client;
};
constexpr BoardSizeInfo kSmallBoard{24, {640, 414}};
constexpr BoardSizeInfo kBigBoard{27, {660, 470}};
constexpr const BoardSizeInfo& SizeInfo(bool bigBoard) { return bigBoard ? kBigBoard : kSmallBoard; }

// Sizes of the pictures that panels are built from.
struct PictureSizes {
    Size info, note, smallNote, bag, rack, logo, done, mix;
};

struct Layout {
    bool bigBoard = true;
    int pitch = kBigBoard.pitch;
    Size client = kBigBoard.client;

    Rect boardFrame{};  // always of 15 x 15 squares
    Rect rackRect{};
    Rect rackTileStrip{};  // the 8 places on the rack
    Rect infoPanel{};
    Rect infoTextArea{};
    Rect notePanel{};    // of the big board's player panel; its right edge counts for both
    Rect visibleNote{};  // of the player panel that is shown
    Rect lettersLeftBox{};
    Rect bagRect{};
    Rect logoRect{};
    Rect doneButton{};
    Rect mixButton{};
    OneBased<Rect, kMaxPlayers> playerRow{};
    Rect clockRow{};
    Rect bonusWordsBox{};
    Rect statisticsBox{};

    // The end of the letters-left box that opens the view of the bag.
    Rect BagViewTrigger() const {
        return {lettersLeftBox.right - 15, lettersLeftBox.top, lettersLeftBox.right, lettersLeftBox.bottom};
    }
    // Of status line 1..6, with the baseline 15 below its top and the text 4 right of its left edge.
    Rect StatusLineBox(int line) const;
    // Row and column 1..15 within the frame, whatever the scenario's size.
    Rect SquareRect(int row, int col) const;
    Rect RackSlotRect(int slot) const;  // 1..8
};

Layout ComputeLayout(bool bigBoard, bool rackAbove, const PictureSizes& sizes);

// The square of the scenario's board under the point, if there is one.
std::optional<BoardPosition> SquareAt(const Layout& layout, Point p);

// The rack slot (1..8) of a point in the strip.
int RackSlotAt(const Layout& layout, Point p);

// The frame around the scenario's board, within boardFrame.
Rect VisibleBoardFrame(const Layout& layout);

// --- The window on the screen, in the desktop's units ---

bool BigBoardFits(const Display& display, int zoom);

// How many times the window is enlarged when nobody has chosen: as often as leaves it comfortable.
int ComfortableZoom(const Display& display);

// Where the client area's corner goes: where it was left, if all of it is then on the screen; otherwise in
// the middle, or in the corner of a small screen.
Point ClientCorner(const Display& display, Size clientInDesktopUnits, Point remembered);

}  // namespace quillet
