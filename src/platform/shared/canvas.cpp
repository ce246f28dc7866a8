#include "platform/canvas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace quillet {
namespace {

constexpr Colour kAllBits = 0xFFFFFF;

Rect BoundsOf(const Image& image) { return {0, 0, image.width, image.height}; }

Rect Scaled(const Rect& rect, int by) {
    return {rect.left * by, rect.top * by, rect.right * by, rect.bottom * by};
}

// The pixels of a picture that show it best at a scale, and how many of them stand for a unit.
struct Source {
    const Image& image;
    int pixelsPerUnit;
};

Source SourceFor(const Picture& picture, int scale) {
    if (scale % 2 == 0 && picture.doubled) return {*picture.doubled, 2};
    return {picture.image, 1};
}

Colour Mixed(Colour below, Colour above, std::uint32_t coverage) {
    const auto channel = [&](int shift) {
        const std::uint32_t from = (below >> shift) & 0xFF;
        const std::uint32_t to = (above >> shift) & 0xFF;
        return ((from * (255 - coverage) + to * coverage + 127) / 255) << shift;
    };
    return channel(16) | channel(8) | channel(0);
}

}  // namespace

Canvas::Canvas(Size size, int canvasScale)
    : pixels(size.width * canvasScale, size.height * canvasScale), scale(canvasScale) {}

Rect Canvas::ToPixels(const Rect& rect) const { return Scaled(rect, scale); }

// Calls change(pixel, x, y) for every pixel of the rectangle that may be drawn on.
template <typename Change>
void Canvas::ForEachPixel(const Rect& pixelRect, Change change) {
    const Rect whole = BoundsOf(pixels);
    const auto visit = [&](const Rect& part) {
        const Rect area = part.Intersection(pixelRect).Intersection(whole);
        if (area.IsEmpty()) return;
        changed = changed.Union(area);
        for (int y = area.top; y < area.bottom; ++y) {
            Colour* row = &pixels.At(area.left, y);
            for (int x = area.left; x < area.right; ++x) change(row[x - area.left], x, y);
        }
    };
    if (!clip) return visit(whole);
    for (const Rect& part : clip->rects) visit(ToPixels(part));
}

void Canvas::Fill(const Rect& rect, Colour colour) {
    ForEachPixel(ToPixels(rect), [&](Colour& pixel, int, int) { pixel = colour; });
}

void Canvas::Frame(const Rect& rect, Colour colour) {
    HorizontalLine(rect.left, rect.right, rect.top, colour);
    HorizontalLine(rect.left, rect.right, rect.bottom - 1, colour);
    VerticalLine(rect.left, rect.top, rect.bottom, colour);
    VerticalLine(rect.right - 1, rect.top, rect.bottom, colour);
}

void Canvas::HorizontalLine(int left, int right, int y, Colour colour) {
    Fill({left, y, right, y + 1}, colour);
}

void Canvas::VerticalLine(int x, int top, int bottom, Colour colour) {
    Fill({x, top, x + 1, bottom}, colour);
}

void Canvas::Triangle(Point tip, int lines, bool pointsUp, Colour colour) {
    const Rect box = {tip.x - lines + 1, pointsUp ? tip.y : tip.y - lines + 1, tip.x + lines,
                      pointsUp ? tip.y + lines : tip.y + 1};
    const Rect pixelBox = ToPixels(box);
    ForEachPixel(pixelBox, [&](Colour& pixel, int x, int y) {
        const int fromTip = pointsUp ? y - pixelBox.top : pixelBox.bottom - 1 - y;
        // Each pixel row is two pixels longer than the one before; the first is one unit long.
        const int indent = lines * scale - scale - fromTip;
        if (x - pixelBox.left >= indent && pixelBox.right - 1 - x >= indent) pixel = colour;
    });
}

void Canvas::Disc(const Rect& rect, Colour colour) {
    const Rect box = ToPixels(rect);
    ForEachPixel(box, [&](Colour& pixel, int x, int y) {
        // In half pixels, from the middle of the pixel to the middle of the disc.
        const int dx = 2 * x + 1 - box.left - box.right;
        const int dy = 2 * y + 1 - box.top - box.bottom;
        if (dx * dx + dy * dy <= box.Width() * box.Width()) pixel = colour;
    });
}

void Canvas::Invert(const Rect& rect) {
    ForEachPixel(ToPixels(rect), [](Colour& pixel, int, int) { pixel ^= kAllBits; });
}

void Canvas::Tile(const Rect& rect, const Picture& pattern) {
    const Source source = SourceFor(pattern, scale);
    if (BoundsOf(source.image).IsEmpty()) return;
    const int repeat = scale / source.pixelsPerUnit;
    ForEachPixel(ToPixels(rect), [&](Colour& pixel, int x, int y) {
        pixel = source.image.At(x / repeat % source.image.width, y / repeat % source.image.height);
    });
}

void Canvas::Draw(const Picture& picture, const Rect& to) {
    Draw(picture, {0, 0, picture.Width(), picture.Height()}, to);
}

void Canvas::Draw(const Picture& picture, const Rect& from, const Rect& to) {
    const Source source = SourceFor(picture, scale);
    const Rect part = Scaled(from, source.pixelsPerUnit).Intersection(BoundsOf(source.image));
    const Rect box = ToPixels(to);
    if (part.IsEmpty() || box.IsEmpty()) return;
    ForEachPixel(box, [&](Colour& pixel, int x, int y) {
        pixel = source.image.At(part.left + (x - box.left) * part.Width() / box.Width(),
                                part.top + (y - box.top) * part.Height() / box.Height());
    });
}

void Canvas::DrawInk(const Picture& sheet, const Rect& from, Point to, Colour ink) {
    const Source source = SourceFor(sheet, scale);
    const Rect part = Scaled(from, source.pixelsPerUnit).Intersection(BoundsOf(source.image));
    const int repeat = scale / source.pixelsPerUnit;
    const Rect box = Rect::At({to.x * scale, to.y * scale}, {part.Width() * repeat, part.Height() * repeat});
    ForEachPixel(box, [&](Colour& pixel, int x, int y) {
        const Colour mask =
            source.image.At(part.left + (x - box.left) / repeat, part.top + (y - box.top) / repeat);
        if (mask == 0) pixel = ink;
    });
}

void Canvas::And(const Picture& picture, Point to) {
    const Source source = SourceFor(picture, scale);
    const int repeat = scale / source.pixelsPerUnit;
    const Rect box =
        Rect::At({to.x * scale, to.y * scale}, {source.image.width * repeat, source.image.height * repeat});
    ForEachPixel(box, [&](Colour& pixel, int x, int y) {
        pixel &= source.image.At((x - box.left) / repeat, (y - box.top) / repeat);
    });
}

Point Canvas::DrawText(const Font& font, Point baseline, std::string_view text, Colour colour) {
    const TextMask mask = MaskOfText(font, text, scale);
    const Rect box =
        Rect::At({baseline.x * scale + mask.left, baseline.y * scale + mask.top}, {mask.width, mask.height});
    ForEachPixel(box, [&](Colour& pixel, int x, int y) {
        const auto index = static_cast<std::size_t>(y - box.top) * static_cast<std::size_t>(mask.width) +
                           static_cast<std::size_t>(x - box.left);
        pixel = Mixed(pixel, colour, mask.coverage[index]);
    });
    return {baseline.x + TextWidth(font, text), baseline.y};
}

void Canvas::Copy(const Canvas& other, const Rect& from, Point to) {
    const Rect part = from.Intersection(Rect::At({0, 0}, other.Extent()));
    if (part.IsEmpty() || other.scale != scale) return;
    const Point corner{to.x + part.left - from.left, to.y + part.top - from.top};
    const Rect box = ToPixels(part.MovedTo(corner));
    const Rect source = ToPixels(part);
    ForEachPixel(box, [&](Colour& pixel, int x, int y) {
        pixel = other.pixels.At(source.left + x - box.left, source.top + y - box.top);
    });
}

Rect Canvas::TakeChanged() { return std::exchange(changed, {}); }

ClipTo::ClipTo(Canvas& clippedCanvas, const Rect& rect)
    : canvas(clippedCanvas), before(clippedCanvas.Clip()) {
    Region part = before ? *before : Region(rect);
    part.Clip(rect);
    canvas.SetClip(part);
}

ClipTo::~ClipTo() {
    if (before) {
        canvas.SetClip(*before);
    } else {
        canvas.RemoveClip();
    }
}

}  // namespace quillet
