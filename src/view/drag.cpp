#include "view/drag.h"

#include "platform/window.h"
#include "view/board_drawing.h"
#include "view/view_state.h"

namespace quillet {
namespace {

constexpr int kTilesForExchange = 6;  // more than these must be in the bag

const Layout& At() { return view.layout; }

// Keeps the letters-left box inverted while the group could be thrown into the bag.
class BagHighlight {
  public:
    explicit BagHighlight(DragPicture& dragPicture) : picture(dragPicture) {}

    void Follow(Point pointer) {
        const bool over = game.bag.tilesleft > kTilesForExchange && At().bagRect.Contains(pointer);
        if (over != shown) picture.InvertBackground(At().lettersLeftBox);
        shown = over;
    }
    bool IsShown() const { return shown; }

  private:
    DragPicture& picture;
    bool shown = false;
};

}  // namespace

DragPicture::DragPicture(const TileGroup& carried) : group(carried), background(WindowCanvas()) {}

Rect DragPicture::RectAt(Point pointer) const {
    const int pitch = At().pitch;
    const Point corner{pointer.x - pitch / 2, pointer.y - pitch / 2};
    const int before = static_cast<int>(group.before.size()) * pitch;
    const int after = static_cast<int>(group.after.size()) * pitch;
    const Rect tile = Rect::At(corner, {pitch - 1, pitch - 1});
    if (group.alongColumn) return {tile.left, tile.top - before, tile.right, tile.bottom + after};
    return {tile.left - before, tile.top, tile.right + after, tile.bottom};
}

void DragPicture::DrawTiles(Point pointer) {
    const int pitch = At().pitch;
    const Rect middle = Rect::At({pointer.x - pitch / 2, pointer.y - pitch / 2}, {pitch - 1, pitch - 1});
    const auto draw = [&](LetterCode letter, int steps) {
        const Rect square =
            group.alongColumn ? middle.Moved(0, steps * pitch) : middle.Moved(steps * pitch, 0);
        DrawTile(WindowCanvas(), square, pitch, RackTileFace(game.currentPlayer, letter));
    };
    draw(group.letter, 0);
    int steps = 0;
    for (LetterCode letter : group.before) draw(letter, --steps);
    steps = 0;
    for (LetterCode letter : group.after) draw(letter, ++steps);
}

void DragPicture::Show(Point pointer) {
    const Rect before = shownAt ? RectAt(*shownAt) : Rect{};
    const Rect area = before.Union(RectAt(pointer)).Intersection(Rect::At({0, 0}, At().client));
    WindowCanvas().Copy(background, area, area.Corner());
    DrawTiles(pointer);
    shownAt = pointer;
}

void DragPicture::Remove() {
    if (!shownAt) return;
    const Rect area = RectAt(*shownAt).Intersection(Rect::At({0, 0}, At().client));
    WindowCanvas().Copy(background, area, area.Corner());
    shownAt.reset();
}

void DragPicture::InvertBackground(const Rect& rect) {
    background.Invert(rect);
    WindowCanvas().Copy(background, rect, rect.Corner());
}

DropTarget DragGroup(const TileGroup& group, Point start) {
    DragPicture picture(group);
    BagHighlight highlight(picture);
    picture.Show(start);
    CapturePointer();
    PointerState pointer{.at = start, .buttonDown = true};
    while (pointer.buttonDown && pointer.active) {
        pointer = WaitForPointer(kForever);
        highlight.Follow(pointer.at);
        picture.Show(pointer.at);
    }
    ReleasePointer();
    const bool overBag = highlight.IsShown();
    if (overBag) picture.InvertBackground(At().lettersLeftBox);
    picture.Remove();
    if (!pointer.active) return {};
    if (At().rackTileStrip.Contains(pointer.at)) return {.slot = RackSlotAt(At(), pointer.at)};
    return {.square = SquareAt(At(), pointer.at), .overBag = overBag};
}

}  // namespace quillet
