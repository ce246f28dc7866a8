// Text without fonts: every character is a box of its own pattern, wide or narrow, so that layouts have
// something to measure and pictures something to show.
#include <algorithm>
#include <string>

#include "platform/fonts.h"
#include "platform/headless/headless_window.h"

namespace quillet {
namespace {

constexpr std::string_view kNarrow = " .,:;'!|iljtfrI()[]";
constexpr std::string_view kWide = "mwMW@";

int Height(const Font& font) { return (font.points * 96 + 36) / 72; }

bool IsFixedPitch(const Font& font) { return font.face.starts_with("Courier"); }

int Advance(const Font& font, char character) {
    const int height = Height(font);
    if (IsFixedPitch(font)) return height * 6 / 10;
    if (kNarrow.find(character) != std::string_view::npos) return std::max(height * 3 / 10, 2);
    if (kWide.find(character) != std::string_view::npos) return height * 8 / 10;
    return height * 55 / 100;
}

}  // namespace

FontMetrics MetricsOf(const Font& font) {
    const int height = Height(font);
    return {.height = height * 115 / 100, .descent = height * 2 / 10, .averageWidth = Advance(font, 'x')};
}

int TextWidth(const Font& font, std::string_view text) {
    int width = 0;
    for (char character : text) width += Advance(font, character);
    return width;
}

TextMask MaskOfText(const Font& font, std::string_view text, int scale) {
    headlessWindow.textsDrawn.emplace_back(text);
    const int capHeight = Height(font) * 7 / 10;
    TextMask mask{.left = 0,
                  .top = -capHeight * scale,
                  .width = TextWidth(font, text) * scale,
                  .height = capHeight * scale,
                  .coverage = {}};
    mask.coverage.resize(static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height));
    int left = 0;
    for (char character : text) {
        const int right = left + (Advance(font, character) - 1) * scale;
        for (int y = 0; character != ' ' && y < mask.height; ++y) {
            for (int x = left; x < right; ++x) {
                const bool inked =
                    ((static_cast<unsigned char>(character) >> ((x + 2 * y) / scale % 7)) & 1U) != 0;
                const auto index = static_cast<std::size_t>(y * mask.width + x);
                mask.coverage[index] = inked ? 255 : 0;
            }
        }
        left = right + scale;
    }
    return mask;
}

}  // namespace quillet
