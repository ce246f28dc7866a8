// The colours of the pictures and what is done with them: one palette, "a writing desk by lamplight".
//
// Bronze is for letters, indigo for words: the two stay apart for eyes that see no red or no green. Brass is
// kept for frames and for what can be pressed; madder is the only red.
#pragma once

#include <QColor>
#include <array>

namespace quillet {

namespace palette {

constexpr QColor Rgb(unsigned value) {
    return QColor(static_cast<int>(value >> 16 & 255), static_cast<int>(value >> 8 & 255),
                  static_cast<int>(value & 255));
}

constexpr QColor kWhite = Rgb(0xFFFFFF), kBlack = Rgb(0x000000);

// Cloth of the desk, and the shadow that lies on it.
constexpr QColor kCloth = Rgb(0x3F585C), kClothLight = Rgb(0x446064), kClothDark = Rgb(0x3A5256);
constexpr QColor kShadow = Rgb(0x243538);
constexpr QColor kPopup = Rgb(0x4A4F74), kPopupLight = Rgb(0x50557B), kPopupDark = Rgb(0x454A6D);

constexpr QColor kVellum = Rgb(0xF3EBD8), kVellumLight = Rgb(0xFFFBEF), kVellumDark = Rgb(0xE6DABD);
constexpr QColor kVellumRule = Rgb(0xCDBB92), kVellumEdge = Rgb(0x9C8655);
constexpr QColor kPaper = Rgb(0xFFFEFB), kPaperDark = Rgb(0xFBF6EA);

constexpr QColor kInk = Rgb(0x24344A), kInkLight = Rgb(0x31455E), kInkDark = Rgb(0x16202B);
constexpr QColor kBrass = Rgb(0xC59A45), kBrassLight = Rgb(0xF0D48A), kBrassDark = Rgb(0x7D5A1E);
constexpr QColor kFlash = Rgb(0xFFE9A8);
constexpr QColor kWalnut = Rgb(0x6E4729), kWalnutLight = Rgb(0x94653D), kWalnutDark = Rgb(0x432918);
constexpr QColor kChannel = Rgb(0x2A1A10), kChannelLight = Rgb(0x4A301D);
constexpr QColor kTile = Rgb(0xF8F0DC), kTileLight = Rgb(0xFFFDF3), kTileDark = Rgb(0xD3C193),
                 kTileEdge = Rgb(0x927A48);
constexpr QColor kMadder = Rgb(0x8C2F39), kMadderLight = Rgb(0xB44B4F), kMadderPale = Rgb(0xCB6A63),
                 kMadderDark = Rgb(0x571A24), kMadderLine = Rgb(0x34101A);

constexpr QColor kPlain = Rgb(0x748A82), kPlainLight = Rgb(0x7E948B), kPlainDark = Rgb(0x6B8179);
constexpr QColor kNight = Rgb(0x26363A), kNightLight = Rgb(0x2F4347), kNightDark = Rgb(0x1E2C2F);
// Times 2 to 5 for a letter and for a word.
constexpr std::array<QColor, 4> kLetterBonus = {Rgb(0x8A6020), Rgb(0x75481A), Rgb(0x5A3213), Rgb(0x40210D)};
constexpr std::array<QColor, 4> kWordBonus = {Rgb(0x5C60AE), Rgb(0x453A8C), Rgb(0x2F2268), Rgb(0x1D1242)};

}  // namespace palette

// From `a` (part 0) to `b` (part 1); opaque.
QColor Mix(QColor a, QColor b, double part);
QColor Lighter(QColor colour, double part);  // towards white
QColor Darker(QColor colour, double part);   // towards black

// With that opacity, 0 to 1.
QColor Sheer(QColor colour, double opacity);

// Relative luminance, 0 to 1, of linear light.
double Luminance(QColor colour);

// The colour itself, or as much darker as that luminance asks, in the same hue.
QColor Capped(QColor colour, double luminance);

}  // namespace quillet
