// The colours of an 8-bit display: a palette of the program's own, shared by everything it draws.
//
// Owns programPalette. On displays with more colours nothing is fitted to it.
#pragma once

#include <array>

#include "platform/image.h"
#include "platform/window.h"

namespace quillet {

struct ProgramPalette {
    bool inUse = false;  // the display has 8 bits per pixel
    std::array<Colour, 256> colours{};
};

inline ProgramPalette programPalette;

// Builds it for the display: the desktop's reserved colours at both ends and a colour cube between them;
// greys where the display has no palette.
void BuildPalette(const Display& display);

// While the palette is in use, turns each pixel into the palette's nearest colour.
void FitToPalette(Picture& picture);

}  // namespace quillet
