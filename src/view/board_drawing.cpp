#include "view/board_drawing.h"

#include <algorithm>

#include "base/presentation.h"
#include "store/preferences.h"
#include "view/graphics.h"
#include "view/view_state.h"

namespace quillet {
namespace {

const Layout& At() { return view.layout; }

// Lays a cell of a sheet into a square; on a colour display without the outermost units, which belong to the
// tile's edge.
void LayInk(Canvas& canvas, const Picture& sheet, const Rect& cell, const Rect& square, Colour ink) {
    const int edge = view.colourDisplay ? 1 : 0;
    canvas.DrawInk(sheet, cell.Shrunk(edge), square.Shrunk(edge).Corner(), ink);
}

void DrawMark(const Rect& cell, const Rect& square) {
    WindowCanvas().DrawInk(graphics.Sheets(At().pitch).letters, cell, square.Corner(), kWhite);
}

// The value of a code as the value sheet can show it.
int ShownValue(LetterCode code) {
    constexpr int kHighestShown = 10;
    return std::clamp<int>(game.settings.letterValues[code], 0, kHighestShown);
}

void DrawFrameAndLines(const Rect& frame) {
    Canvas& canvas = WindowCanvas();
    canvas.Frame(frame, kWhite);
    for (int y = frame.top + At().pitch; y < frame.bottom - 1; y += At().pitch) {
        canvas.HorizontalLine(frame.left, frame.right, y, kWhite);
    }
    for (int x = frame.left + At().pitch; x < frame.right - 1; x += At().pitch) {
        canvas.VerticalLine(x, frame.top, frame.bottom, kWhite);
    }
}

}  // namespace

void DrawSquareKind(const Rect& square, SquareKind kind) {
    Canvas& canvas = WindowCanvas();
    const std::optional<Picture>& picture = graphics.squares[kind];
    if (view.colourDisplay && picture) {
        canvas.Draw(*picture, square);
    } else {
        canvas.Fill(square, kind == 0 ? kGrey : kBlack);
    }
    if (kind != 0 && IsPlayable(kind)) DrawMark(KindMarkCell(At().pitch, kind), square);
}

void DrawSquareWithoutStartMark(int row, int col) {
    DrawSquareKind(At().SquareRect(row, col), game.board[row][col].kind);
}

void DrawSquare(int row, int col) {
    DrawSquareWithoutStartMark(row, col);
    if (row == game.settings.startRow && col == game.settings.startCol) DrawStartMark(row, col);
}

void DrawStartMark(int row, int col) { DrawMark(StartMarkCell(At().pitch), At().SquareRect(row, col)); }

void DrawTile(Canvas& canvas, const Rect& square, int pitch, const TileFace& face) {
    if (!IsTileCode(face.code)) return;
    const SheetSet& sheets = graphics.Sheets(pitch);
    if (view.colourDisplay) {
        canvas.Draw(sheets.tile, Rect::At(square.Corner(), {sheets.tile.Width(), sheets.tile.Height()}));
    } else {
        canvas.Fill(square.Shrunk(1), kWhite);
    }
    LayInk(canvas, sheets.letters, GlyphCell(pitch, face.code), square, kBlack);
    if (face.showsValue) {
        LayInk(canvas, sheets.values, ValueCell(pitch, ShownValue(face.code)), square, kBlack);
    }
}

void DrawTileOnBoard(int row, int col, LetterCode code) {
    DrawTile(WindowCanvas(), At().SquareRect(row, col), At().pitch, {code, preferences.showLetterValues});
}

void DrawPlayedBlank(int row, int col) {
    const LetterCode letter = game.board[row][col].blankLetter;
    if (!IsLetter(letter)) return;
    const Rect square = At().SquareRect(row, col);
    LayInk(WindowCanvas(), graphics.Sheets(At().pitch).letters, GlyphCell(At().pitch, letter), square, kRed);
    if (!view.colourDisplay) WindowCanvas().Invert(square.Shrunk(1));
}

void DrawBoardSquare(int row, int col) {
    const Square& square = game.board[row][col];
    DrawSquare(row, col);
    if (square.IsEmpty()) return;
    DrawTileOnBoard(row, col, square.letter);
    if (square.IsLetterSquare() && square.letter == kBlank) DrawPlayedBlank(row, col);
}

void DrawBoard(const Rect& area) {
    const Rect frame = VisibleBoardFrame(At());
    const int rowsAbove = std::max(area.top - frame.top, 0) / At().pitch;
    const int rowsBelow = std::max(frame.bottom - area.bottom, 0) / At().pitch;
    DrawFrameAndLines(frame);
    for (int row = game.bounds.firstRow + rowsAbove; row <= game.bounds.lastRow - rowsBelow; ++row) {
        for (int col = game.bounds.firstCol; col <= game.bounds.lastCol; ++col) DrawBoardSquare(row, col);
    }
}

// --- The rack ---

TileFace RackTileFace(int player, LetterCode code) {
    const bool open = preferences.showComputerLetters || !game.players[player].isComputer;
    return {open ? code : kBlank, open && preferences.showLetterValues};
}

void DrawRackSlot(int player, int slot, LetterCode code) {
    DrawTile(WindowCanvas(), At().RackSlotRect(slot), At().pitch, RackTileFace(player, code));
}

void EraseRackSlot(int slot) {
    const ClipTo clip(WindowCanvas(), At().RackSlotRect(slot));
    WindowCanvas().Draw(graphics.rack, At().rackRect);
}

void DrawRack() {
    const Rack& rack = game.Current().rack;
    for (int slot = 1; slot <= kRackPositions; ++slot) {
        if (rack.positions[slot] != 0) DrawRackSlot(game.currentPlayer, slot, rack.positions[slot]);
    }
}

void DrawRackPanel() {
    WindowCanvas().Draw(graphics.rack, At().rackRect);
    if (game.gameStarted) DrawRack();
}

}  // namespace quillet
