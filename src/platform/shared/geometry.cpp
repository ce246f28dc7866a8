#include "platform/geometry.h"

#include <utility>

namespace quillet {

void Region::Add(const Rect& rect) {
    if (rect.IsEmpty()) return;
    Subtract(rect);
    rects.push_back(rect);
}

void Region::Subtract(const Rect& hole) {
    std::vector<Rect> rest;
    for (const Rect& rect : rects) {
        if (!rect.Meets(hole)) {
            rest.push_back(rect);
            continue;
        }
        const Rect middle = rect.Intersection(hole);
        for (const Rect& piece : {Rect{rect.left, rect.top, rect.right, middle.top},
                                  Rect{rect.left, middle.top, middle.left, middle.bottom},
                                  Rect{middle.right, middle.top, rect.right, middle.bottom},
                                  Rect{rect.left, middle.bottom, rect.right, rect.bottom}}) {
            if (!piece.IsEmpty()) rest.push_back(piece);
        }
    }
    rects = std::move(rest);
}

void Region::Clip(const Rect& rect) {
    for (Rect& piece : rects) piece = piece.Intersection(rect);
    std::erase_if(rects, [](const Rect& piece) { return piece.IsEmpty(); });
}

bool Region::Meets(const Rect& rect) const {
    return std::ranges::any_of(rects, [&](const Rect& piece) { return piece.Meets(rect); });
}

Rect Region::Bounds() const {
    Rect bounds;
    for (const Rect& piece : rects) bounds = bounds.Union(piece);
    return bounds;
}

}  // namespace quillet
