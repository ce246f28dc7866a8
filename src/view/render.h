// Painting the window and showing what changes in a game. What the rules ask of the screen
// (base/presentation.h) is answered here, but for dialogs and sounds.
#pragma once

#include "platform/geometry.h"

namespace quillet {

// Draws what the region needs. The first request ever shows the splash alone; the second asks for everything.
void PaintWindow(const Region& update);

// Paints at once what has become invalid.
void PaintNow();

void InvalidateWindow();
void InvalidateBoard();  // with its shadow
void InvalidateButtons();
void InvalidateRack();
void InvalidatePlayerRow(int player);
void InvalidateInfoPanel();

// The board editor draws its own panel and palette in the place of the game's panels.
struct EditorPanel {
    Rect rect;
    void (*draw)() = nullptr;
};
void ShowEditorPanel(const EditorPanel& panel);

// Draws every tile on the board and the rack anew: the values come or go.
void RedrawTiles();

// After "Allow hints?" changed: the end of the letters-left box.
void RedrawHintLock();

// After "Tell computer to move?" changed.
void ShowMoveButtonPlainly();

// A blank on the board whose letter is asked for stands out.
void MarkSquareAsked(int row, int col);
void UnmarkSquareAsked(int row, int col);

Point InfoPanelMiddle();

// For assistive technology: whose turn it is, the scores, the rack and the status lines.
void DescribeGame();

}  // namespace quillet
