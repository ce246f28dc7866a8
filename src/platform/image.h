// A picture in memory: plain 32-bit pixels, of no toolkit's making. A value: copies are pictures of their
// own.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace quillet {

using Colour = std::uint32_t;  // 0x00RRGGBB

struct Image {
    int width = 0;  // pixels
    int height = 0;
    std::vector<Colour> pixels;  // row by row from the top, each from the left

    Image() = default;
    Image(int imageWidth, int imageHeight, Colour fill = 0)
        : width(imageWidth),
          height(imageHeight),
          pixels(static_cast<std::size_t>(imageWidth) * static_cast<std::size_t>(imageHeight), fill) {}

    // x and y are 0-based, from the upper left corner.
    Colour& At(int x, int y) { return pixels[IndexOf(x, y)]; }
    Colour At(int x, int y) const { return pixels[IndexOf(x, y)]; }

    friend bool operator==(const Image&, const Image&) = default;

  private:
    std::size_t IndexOf(int x, int y) const {
        assert(x >= 0 && x < width && y >= 0 && y < height);
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    }
};

// A picture for the window: one pixel for each unit, and for displays drawn at scale 2 perhaps a finer twin
// of exactly twice the size.
struct Picture {
    Image image;
    std::optional<Image> doubled;

    Picture() = default;
    Picture(Image single) : image(std::move(single)) {}  // NOLINT: an image is a picture without a twin
    int Width() const { return image.width; }
    int Height() const { return image.height; }
};

}  // namespace quillet
