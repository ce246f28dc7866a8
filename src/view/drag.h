// A group of tiles that follows the pointer until the button is let go.
#pragma once

#include <optional>

#include "platform/canvas.h"
#include "view/tile_groups.h"

namespace quillet {

// The picture of a group under the pointer, over the window as it was when the group was picked up.
class DragPicture {
  public:
    // The group's own places must have been drawn without it.
    explicit DragPicture(const TileGroup& carried);

    void Show(Point pointer);  // in the place of where it was
    void Remove();             // the window is again as it was

    // Inverts a part of what lies under the group, on the screen too.
    void InvertBackground(const Rect& rect);

  private:
    Rect RectAt(Point pointer) const;
    void DrawTiles(Point pointer);

    const TileGroup& group;
    Canvas background;
    std::optional<Point> shownAt;
};

// Carries the group about from `start` until the button is let go, and says where it was dropped; nowhere
// when the window lost the focus meanwhile.
DropTarget DragGroup(const TileGroup& group, Point start);

}  // namespace quillet
