#include "view/pop_up.h"

#include <algorithm>

#include "platform/ticks.h"
#include "platform/window.h"
#include "view/graphics.h"
#include "view/render.h"
#include "view/view_state.h"

namespace quillet {
namespace {

constexpr int kColumnCharacters = 16;
constexpr int kTextMargin = 6;
constexpr std::uint32_t kQuickClick = 300;  // milliseconds; who lets go sooner wants the view to stay

void DrawFrame(const Rect& rect) {
    Canvas& canvas = WindowCanvas();
    canvas.Frame(rect, kBlack);
    canvas.VerticalLine(rect.right - 2, rect.top, rect.bottom, kBlack);
    canvas.HorizontalLine(rect.left, rect.right, rect.bottom - 2, kBlack);
}

// Tells when a view closes from what the buttons do.
class ReleaseRule {
  public:
    bool Closes(const PointerState& pointer) {
        if (!pointer.active) return true;
        const bool changed = pointer.buttonDown != wasDown;
        wasDown = pointer.buttonDown;
        if (!changed) return false;
        return wasDown || TickCount() - openedAt >= kQuickClick;
    }

  private:
    std::uint32_t openedAt = TickCount();
    bool wasDown = true;
};

}  // namespace

void DrawTextFrame(const Rect& rect) {
    WindowCanvas().Fill(rect, kWhite);
    DrawFrame(rect);
}

Rect DrawTileFrame(const Rect& rect) {
    const Rect grown = rect.Shrunk(-1);
    if (view.colourDisplay) {
        WindowCanvas().Tile(grown, graphics.popUp);
    } else {
        WindowCanvas().Fill(grown, kWhite);
    }
    DrawFrame(grown);
    return grown;
}

void DrawPressedBox(const Rect& box) {
    WindowCanvas().Fill(box, kBlack);
    WindowCanvas().Triangle({box.right - 8, box.top + 4}, 5, true, kWhite);
}

bool WaitUntilClosed(const std::function<std::uint32_t(Point)>& follow) {
    CapturePointer();
    ReleaseRule rule;
    PointerState pointer{.at = PointerPosition(), .buttonDown = true};
    do {
        pointer = WaitForPointer(follow(pointer.at));
    } while (!rule.Closes(pointer));
    ReleasePointer();
    return pointer.active;
}

void CloseView(const Rect& rect, const Rect& trigger) {
    Invalidate(rect);
    Invalidate(trigger);
    PaintNow();
}

TextGrid::TextGrid(const Rect& viewRect, const Font& viewFont)
    : rect(viewRect),
      font(viewFont),
      rowHeight(MetricsOf(viewFont).height),
      columnWidth(kColumnCharacters * MetricsOf(viewFont).averageWidth) {}

Size TextGrid::SizeOf(const Font& font, int columns, int rows) {
    const FontMetrics metrics = MetricsOf(font);
    return {kColumnCharacters * metrics.averageWidth * columns + 2 * kTextMargin, rows * metrics.height + 4};
}

void TextGrid::Write(int column, int row, std::string_view text) const {
    WriteAt((column - 1) * columnWidth + kTextMargin, row, text);
}

void TextGrid::WriteAt(int x, int row, std::string_view text) const {
    const ClipTo clip(WindowCanvas(), rect.Shrunk(1));
    WindowCanvas().DrawText(font, {rect.left + x, rect.top + row * rowHeight}, text, kBlack);
}

}  // namespace quillet
