// Drawing, in plain C++ on a buffer of pixels, so that every platform draws the same.
//
// Coordinates are units; the buffer has `scale` pixels for each unit in both directions. Lines are one unit
// thick. Nothing is drawn outside the canvas or outside the clip. Pictures are scaled by dropping or
// repeating whole rows and columns, never blended; at an even scale a picture's doubled twin is the one that
// is taken.
#pragma once

#include <optional>
#include <string_view>

#include "platform/fonts.h"
#include "platform/geometry.h"
#include "platform/image.h"

namespace quillet {

class Canvas {
  public:
    Canvas() = default;
    Canvas(Size size, int scale);

    Size Extent() const { return {pixels.width / scale, pixels.height / scale}; }
    int Scale() const { return scale; }
    const Image& Pixels() const { return pixels; }
    Colour At(Point p) const { return pixels.At(p.x * scale, p.y * scale); }  // upper left pixel of a unit

    void SetClip(const Region& region) { clip = region; }
    const std::optional<Region>& Clip() const { return clip; }
    void RemoveClip() { clip.reset(); }

    void Fill(const Rect& rect, Colour colour);
    void Frame(const Rect& rect, Colour colour);                     // the rectangle's outermost units
    void HorizontalLine(int left, int right, int y, Colour colour);  // right is excluded
    void VerticalLine(int x, int top, int bottom, Colour colour);
    // A filled triangle with its point at `tip`, pointing up or down: `lines` units high, its first line one
    // unit long and each further one two longer.
    void Triangle(Point tip, int lines, bool pointsUp, Colour colour);
    void Disc(const Rect& rect, Colour colour);
    void Invert(const Rect& rect);
    void Tile(const Rect& rect, const Picture& pattern);  // whole tiles counted from (0, 0)

    void Draw(const Picture& picture, const Rect& to);
    void Draw(const Picture& picture, const Rect& from, const Rect& to);  // `from` in units of the picture
    // Black pixels of that part of a sheet become ink, the others leave what is there.
    void DrawInk(const Picture& sheet, const Rect& from, Point to, Colour ink);
    // Keeps of each pixel the bits that both have: a black and white picture leaves its black.
    void And(const Picture& picture, Point to);

    // Text on its baseline; what is returned is where the next piece begins.
    Point DrawText(const Font& font, Point baseline, std::string_view text, Colour colour);

    // Copies a part of another canvas of the same scale.
    void Copy(const Canvas& other, const Rect& from, Point to);

    // Everything that was drawn since this was last asked, in pixels; empty when nothing was.
    Rect TakeChanged();

  private:
    Rect ToPixels(const Rect& rect) const;
    template <typename Change>
    void ForEachPixel(const Rect& pixelRect, Change change);

    Image pixels;
    int scale = 1;
    std::optional<Region> clip;  // units
    Rect changed;                // pixels
};

// Restricts drawing to a rectangle, within the clip there was, as long as it lives.
class ClipTo {
  public:
    ClipTo(Canvas& clippedCanvas, const Rect& rect);
    ~ClipTo();
    ClipTo(const ClipTo&) = delete;
    ClipTo& operator=(const ClipTo&) = delete;

  private:
    Canvas& canvas;
    std::optional<Region> before;
};

}  // namespace quillet
