// What the views that pop up have in common: the frame, the pressed box they open from, and when they close.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "platform/fonts.h"
#include "platform/geometry.h"

namespace quillet {

// Fills a view with white and frames it; its right and bottom edges are two units thick.
void DrawTextFrame(const Rect& rect);

// Likewise for views of tiles, on their pattern and one unit larger on every side. What comes back is all
// that was drawn on.
Rect DrawTileFrame(const Rect& rect);

// A box with a triangle as it looks while its view is open.
void DrawPressedBox(const Rect& box);

// Waits until the view is to close: when the window is no longer active, when a button is let go after the
// view has been open for a while, or at the next click when it was let go sooner. `follow` hears where the
// pointer is, first at once and then at every move, and says for how long it may be left alone
// (milliseconds). False when the window was left: nothing is then chosen.
bool WaitUntilClosed(const std::function<std::uint32_t(Point)>& follow);

// Takes the view off the window again.
void CloseView(const Rect& rect, const Rect& trigger);

// Text in columns of 16 characters of a fixed-pitch font and rows, both counted from 1.
class TextGrid {
  public:
    TextGrid(const Rect& viewRect, const Font& viewFont);

    static Size SizeOf(const Font& font, int columns, int rows);
    void Write(int column, int row, std::string_view text) const;
    void WriteAt(int x, int row, std::string_view text) const;  // x from the view's left edge

  private:
    Rect rect;
    Font font;
    int rowHeight;
    int columnWidth;
};

}  // namespace quillet
