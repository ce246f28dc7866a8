#include "squares.h"

#include <algorithm>

#include "brush.h"
#include "pictures.h"

// A bonus is known by its sign, its digit and its shape before its colour, so the bonus squares are alike in
// all scenarios. A theme changes the plain squares, in hue only, and what lies on the blocked ones.
namespace quillet {
namespace {

using namespace palette;

struct Theme {
    std::string_view scenario;
    QColor plain, plainLight, plainDark;
    const Motifs& motifs;
};

const std::array kThemes = {
    Theme{"", kPlain, kPlainLight, kPlainDark, kDeskMotifs},
    Theme{"Diamond", kPlain, kPlainLight, kPlainDark, kDiamondMotifs},
    Theme{"Kitchen", Rgb(0x8B8370), Rgb(0x958C79), Rgb(0x827A68), kKitchenMotifs},
    Theme{"Plain Sailing", Rgb(0x5F8A9B), Rgb(0x6A93A4), Rgb(0x578191), kSeaMotifs},
    Theme{"First Words", Rgb(0x7A8C66), Rgb(0x85966F), Rgb(0x71835E), kNurseryMotifs},
    Theme{"Four Rooms", Rgb(0x8A8272), Rgb(0x948B7B), Rgb(0x817969), kHouseMotifs},
    Theme{"Fireworks", Rgb(0x6A7480), Rgb(0x747E8A), Rgb(0x616B77), kNightSkyMotifs},
};

const Theme& ThemeOf(std::string_view scenario) {
    const auto found = std::ranges::find(kThemes, scenario, &Theme::scenario);
    return found == kThemes.end() ? kThemes.front() : *found;
}

constexpr QRectF kWhole(0, 0, kSquareUnits, kSquareUnits);

// A shallow well leaves a groove beside each white line of the board.
void PaintPlain(QPainter& painter, const Theme& theme) {
    painter.fillRect(kWhole, Ramp(kWhole, theme.plainLight, theme.plainDark));
    FillRound(painter, {2, 2, 22, 22}, 3,
              Ramp(kWhole, Sheer(theme.plainDark, 0.55), Sheer(theme.plainLight, 0.55)));
}

// The well repeats the sign that will be laid over it: a disc for a letter, a hexagon along the line for a
// word.
void PaintBonus(QPainter& painter, int kind) {
    const bool word = kind % 2 == 0;
    const auto at = static_cast<std::size_t>((kind - 1) / 2);
    const QColor colour = word ? kWordBonus[at] : kLetterBonus[at];
    painter.fillRect(kWhole, Ramp(kWhole, Lighter(colour, 0.09), Darker(colour, 0.22)));
    Fill(painter, word ? Shape("M 0,13 L 6,3 L 20,3 L 26,13 L 20,23 L 6,23 Z") : Shape("E 13,13 11.3,11.3"),
         Ramp({4, 4}, {22, 22}, Darker(colour, 0.26), Lighter(colour, 0.02)));
}

void PaintBlocked(QPainter& painter, Motif motif) {
    painter.fillRect(kWhole, Ramp(kWhole, kNightLight, kNightDark));
    motif(painter);
}

}  // namespace

QImage DrawSquare(int kind, std::string_view scenario, int scale) {
    const Theme& theme = ThemeOf(scenario);
    return Draw(kSquareUnits, kSquareUnits, scale, [&](QPainter& painter) {
        if (kind == 0) {
            PaintPlain(painter, theme);
        } else if (kind < kFirstBlocked) {
            PaintBonus(painter, kind);
        } else {
            PaintBlocked(painter, theme.motifs[static_cast<std::size_t>(kind - kFirstBlocked)]);
        }
    });
}

}  // namespace quillet
