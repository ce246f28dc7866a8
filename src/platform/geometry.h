// Points, rectangles and regions of the window.
//
// Units are those of the layout: one unit is `scale` pixels wide and high (platform/canvas.h). x grows to the
// right and y downwards, from the client area's upper left corner. A rectangle includes its left and top edge
// and excludes its right and bottom one.
#pragma once

#include <algorithm>
#include <vector>

namespace quillet {

struct Point {
    int x = 0;
    int y = 0;

    friend constexpr bool operator==(const Point&, const Point&) = default;
};

struct Size {
    int width = 0;
    int height = 0;

    friend constexpr bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    static constexpr Rect At(Point corner, Size size) {
        return {corner.x, corner.y, corner.x + size.width, corner.y + size.height};
    }

    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr Point Corner() const { return {left, top}; }
    constexpr Size Extent() const { return {Width(), Height()}; }
    constexpr bool IsEmpty() const { return left >= right || top >= bottom; }
    constexpr bool Contains(Point p) const {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
    constexpr bool Contains(const Rect& r) const {
        return r.left >= left && r.right <= right && r.top >= top && r.bottom <= bottom;
    }
    constexpr bool Meets(const Rect& other) const { return !Intersection(other).IsEmpty(); }

    constexpr Rect Moved(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    constexpr Rect MovedTo(Point corner) const { return At(corner, Extent()); }
    constexpr Rect Shrunk(int by) const { return {left + by, top + by, right - by, bottom - by}; }
    constexpr Rect Intersection(const Rect& other) const {
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                std::min(bottom, other.bottom)};
    }
    // The smallest rectangle around both; an empty one counts for nothing.
    constexpr Rect Union(const Rect& other) const {
        if (IsEmpty()) return other;
        if (other.IsEmpty()) return *this;
        return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
                std::max(bottom, other.bottom)};
    }

    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

// A set of points, as rectangles that do not overlap.
struct Region {
    std::vector<Rect> rects;

    Region() = default;
    Region(const Rect& rect) { Add(rect); }  // NOLINT: a rectangle is a region

    void Add(const Rect& rect);
    void Subtract(const Rect& rect);
    void Clip(const Rect& rect);  // keeps what lies within it

    bool IsEmpty() const { return rects.empty(); }
    bool Meets(const Rect& rect) const;
    Rect Bounds() const;
};

}  // namespace quillet
