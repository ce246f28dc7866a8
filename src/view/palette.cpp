#include "view/palette.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

namespace quillet {
namespace {

constexpr int kEntries = 256;

int Channel(Colour colour, int shift) { return static_cast<int>((colour >> shift) & 0xFF); }

Colour Nearest(Colour colour) {
    const auto distance = [&](Colour other) {
        int sum = 0;
        for (int shift : {0, 8, 16}) {
            const int difference = Channel(colour, shift) - Channel(other, shift);
            sum += difference * difference;
        }
        return sum;
    };
    return *std::ranges::min_element(programPalette.colours, {}, distance);
}

void Fit(Image& image) {
    std::unordered_map<Colour, Colour> known;
    for (Colour& pixel : image.pixels) {
        const auto [entry, isNew] = known.try_emplace(pixel);
        if (isNew) entry->second = Nearest(pixel);
        pixel = entry->second;
    }
}

}  // namespace

void BuildPalette(const Display& display) {
    programPalette.inUse = display.bitsPerPixel == 8;
    auto& colours = programPalette.colours;
    if (display.paletteEntries != kEntries) {
        for (std::uint32_t i = 0; i < kEntries; ++i) colours[i] = i << 16 | i << 8 | i;
        return;
    }
    colours = display.systemPalette;
    const int reserved = std::max(display.reservedEntries, 0);
    if (reserved >= kEntries) return;
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    for (int i = reserved / 2; i <= kEntries - 1 - reserved / 2; ++i) {
        red = static_cast<std::uint8_t>(red + 32);
        if (red == 0) green = static_cast<std::uint8_t>(green + 32);
        if (red == 0 && green == 0) blue = static_cast<std::uint8_t>(blue + 64);
        colours[static_cast<std::size_t>(i)] =
            static_cast<Colour>(red) << 16 | static_cast<Colour>(green) << 8 | blue;
    }
}

void FitToPalette(Picture& picture) {
    if (!programPalette.inUse) return;
    Fit(picture.image);
    if (picture.doubled) Fit(*picture.doubled);
}

}  // namespace quillet
