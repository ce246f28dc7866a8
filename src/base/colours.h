// Colours by name, as opponents and the string table give them.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "base/text.h"
#include "platform/image.h"

namespace quillet {

constexpr Colour kBlack = 0x000000;
constexpr Colour kWhite = 0xFFFFFF;
constexpr Colour kBlue = 0x0000FF;

// The first letter, of either case, decides: "white", "w" and "wheat" are white. A name in b is blue when its
// third letter is a "u"; every other name is black.
constexpr Colour ColourNamed(std::string_view name) {
    struct Initial {
        char letter;
        Colour colour;
    };
    constexpr std::array kInitials{Initial{'W', kWhite},   Initial{'R', 0xFF0000}, Initial{'G', 0x00FF00},
                                   Initial{'C', 0x00FFFF}, Initial{'M', 0xFF00FF}, Initial{'Y', 0xFFFF00}};
    if (name.empty()) return kBlack;
    const char initial = ToUpper(name[0]);
    if (initial == 'B') return name.size() > 2 && ToUpper(name[2]) == 'U' ? kBlue : kBlack;
    const auto entry = std::ranges::find(kInitials, initial, &Initial::letter);
    return entry == kInitials.end() ? kBlack : entry->colour;
}

}  // namespace quillet
