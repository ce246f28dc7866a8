// Text as the desktop's fonts draw it: its measure, and its shape as a mask that the canvas fills with
// colour.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace quillet {

// A font by its name; a face whose name ends in " Bold" is the bold one of its family. A face that is not
// installed is replaced by one like it.
struct Font {
    std::string_view face;
    int points = 8;  // at 96 dots an inch
};

struct FontMetrics {
    int height = 0;        // units; from the highest letter to the lowest
    int descent = 0;       // of it below the baseline
    int averageWidth = 0;  // of a character; of every character in a fixed-pitch font
};
FontMetrics MetricsOf(const Font& font);

// How far the text moves the pen, in units.
int TextWidth(const Font& font, std::string_view text);

// The text's shape at a scale, in pixels, relative to the pen on the baseline.
struct TextMask {
    int left = 0;  // of the mask's corner; above the baseline `top` is negative
    int top = 0;
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> coverage;  // row by row, 0 none .. 255 full
};
TextMask MaskOfText(const Font& font, std::string_view text, int scale);

}  // namespace quillet
