#include <cmath>
#include <numbers>

#include "brush.h"
#include "patterns.h"
#include "squares.h"

// One thing on each blocked square. It must be known at 23 pixels too, when three rows and columns of it are
// left out: so nothing that counts is thinner than two.
namespace quillet {
namespace {

using namespace palette;

constexpr QColor kGlass = Rgb(0x8FA9C2), kGlassLight = Rgb(0xA9C1D6), kGlassDark = Rgb(0x4F6C8A);
constexpr QColor kSteel = Rgb(0xC3CCD2), kSteelDark = Rgb(0x76848E);
constexpr QColor kLeaf = Rgb(0x7FA05A), kLeafDark = Rgb(0x4E6E38);
constexpr QColor kWater = Rgb(0x5F93A8), kWaterDark = Rgb(0x35606F);
constexpr QColor kIndigo = Rgb(0x5C60AE), kIndigoDark = Rgb(0x453A8C);

void FillText(QPainter& painter, const char* shape, const QBrush& brush) {
    Fill(painter, Shape(shape), brush);
}

void StrokeText(QPainter& painter, const char* shape, QColor colour, double width) {
    Stroke(painter, Shape(shape), colour, width);
}

// From the left to the right edge of what is drawn.
QLinearGradient Across(double left, double right, QColor light, QColor dark) {
    return Ramp(QPointF(left, 6), QPointF(right, 20), light, dark);
}

// --- The desk ---

void PaintInkPot(QPainter& painter) {
    FillText(painter, "B 9,4 8,3.4 1", kBrass);
    FillText(painter, "R 10.5,7 5,3", kGlass);
    FillText(painter, "B 5,9.5 16,12.5 4", Across(5, 21, kGlassLight, kGlassDark));
    FillText(painter, "B 7,13.5 12,6.8 2.4", Rgb(0x1B2740));
    FillText(painter, "B 7.2,11 2,6 1", Sheer(kWhite, 0.65));
}

void PaintQuillPen(QPainter& painter) {
    Quill(painter, {4.5, 22}, 25, 48, {kVellum, kTileDark, kBrass});
    FillText(painter, "E 4.6,22.2 1.6,1.2", kInkDark);
}

void PaintSeal(QPainter& painter) {
    const auto blot = [&](QPointF middle, QColor colour) {
        for (int k = 0; k < 9; ++k) {
            const double turn = k * 2 * std::numbers::pi / 9;
            FillEllipse(painter, middle + QPointF(7.6 * std::cos(turn), 7.6 * std::sin(turn)), 3.1, 3.1,
                        colour);
        }
        FillEllipse(painter, middle, 8.4, 8.4, colour);
    };
    blot({13.6, 13.8}, kMadderDark);
    blot({13, 13}, kMadder);
    FillText(painter, "E 12.6,12.6 6.4,6.4", kMadderDark);
    FillText(painter, "E 13.3,13.3 5.8,5.8", kMadderLight);
    Quill(painter, {9.6, 17}, 11, 52, {kVellum, kTileDark, kMadderDark});
}

void PaintBook(QPainter& painter) {
    FillText(painter, "B 4,5 18,17.5 2", kWalnutDark);
    FillText(painter, "B 4,4 18,16 2", Across(4, 22, kIndigo, kIndigoDark));
    FillText(painter, "R 6,18.2 16,2.6", kVellum);
    FillText(painter, "R 6,19.2 16,0.7", kTileDark);
    FillText(painter, "R 6.4,4 1.4,14 R 11,8 8,1.3 R 12.5,11 5,1.2", kBrass);
}

void PaintCandle(QPainter& painter) {
    FillText(painter, "B 5,19.6 16,3 1.4", kBrass);
    FillText(painter, "R 10,17.4 6,2.4", kBrassDark);
    FillText(painter, "B 10,10 6,8.4 1", Ramp(QPointF(10, 0), QPointF(16, 0), kVellum, kTileDark));
    FillText(painter, "M 13,2 C 16.6,6.4 15.6,9.6 13,9.6 C 10.4,9.6 9.4,6.4 13,2 Z", kBrassLight);
    FillText(painter, "E 13,7.6 1,1.6", kWhite);
}

// --- The kitchen ---

void PaintPot(QPainter& painter) {
    StrokeText(painter, "M 9,6.5 C 8,5 10,4 9,2.6 M 13,6 C 12,4.6 14,3.6 13,2.2 M 17,6.5 C 16,5 18,4 17,2.6",
               Sheer(kWhite, 0.55), 1.2);
    FillText(painter, "B 2.5,11.6 21,2.8 1.4", kBrassDark);
    FillText(painter,
             "M 5,10 L 21,10 L 20.4,19 C 20.2,21.4 19,22.6 17,22.6 L 9,22.6 C 7,22.6 5.8,21.4 5.6,19 Z",
             Across(5, 21, Rgb(0xD98A56), Rgb(0x7C3F22)));
    FillText(painter, "B 4,8.4 18,2.6 1.3", Across(4, 22, Rgb(0xE8A878), Rgb(0x9A5630)));
}

void PaintWhisk(QPainter& painter) {
    painter.translate(13, 13);
    painter.rotate(40);
    StrokeText(painter, "M 0,2 C -7,-3 -5,-11.5 0,-11.5 C 5,-11.5 7,-3 0,2 M 0,2 L 0,-11.5", kSteel, 1.5);
    StrokeText(painter, "M 0,2 C -3,-3 -2.6,-11.3 0,-11.5 C 2.6,-11.3 3,-3 0,2", kSteelDark, 1.1);
    FillText(painter, "B -1.7,1.4 3.4,10.6 1.6",
             Ramp(QPointF(-2, 0), QPointF(2, 0), kWalnutLight, kWalnutDark));
}

void PaintMug(QPainter& painter) {
    StrokeText(painter, "M 10,6 C 9,4.6 11,3.6 10,2.4 M 14,6 C 13,4.6 15,3.6 14,2.4", Sheer(kWhite, 0.55),
               1.2);
    StrokeText(painter, "M 18,11 C 23.4,10 23.4,18 18,17.6", kTileDark, 2.4);
    FillText(painter,
             "M 5,8.5 L 19,8.5 L 18.4,20 C 18.2,22 17.2,22.8 15.6,22.8 L 8.4,22.8 C 6.8,22.8 5.8,22 5.6,20 Z",
             Across(5, 19, kTileLight, kTileDark));
    FillText(painter, "E 12,8.8 7,1.7", Rgb(0x50301C));
    FillText(painter, "R 5.3,13 13.4,2.4", kIndigo);
}

void PaintPepper(QPainter& painter) {
    FillText(painter,
             "M 13,7.4 C 18,4.6 22.6,8 21.8,13.4 C 21.2,18.6 18,23 15.6,22.6 C 14.4,22.4 13.8,22 13,22 "
             "C 12.2,22 11.6,22.4 10.4,22.6 C 8,23 4.8,18.6 4.2,13.4 C 3.4,8 8,4.6 13,7.4 Z",
             Across(5, 22, kMadderPale, kMadderDark));
    StrokeText(painter, "M 10,9 C 8.6,13 9.4,18 10.8,21 M 16,9 C 17.4,13 16.6,18 15.2,21",
               Sheer(kMadderDark, 0.7), 1.2);
    FillText(painter,
             "M 9.4,8 C 10,5.6 12,6 12.2,5 L 12,2.6 L 14.4,2.2 L 14.2,5 C 14.6,6 16.4,5.8 16.8,8 "
             "C 15,7.2 14,8.4 13,8.4 C 12,8.4 11,7.2 9.4,8 Z",
             kLeaf);
}

void PaintSpoonAndFork(QPainter& painter) {
    FillText(painter, "E 8,7.6 3.4,4.8", Across(5, 11, kWhite, kSteelDark));
    FillText(painter, "B 7,11 2,12.4 1", kSteel);
    FillText(painter, "B 17,10 2,13.4 1", kSteel);
    FillText(painter,
             "M 14.4,3 L 15.8,3 L 16.2,8 L 17.3,8 L 17.4,3 L 18.6,3 L 18.7,8 L 19.8,8 L 20.2,3 L 21.6,3 "
             "C 22,8.6 21,11.6 18,11.8 C 15,11.6 14,8.6 14.4,3 Z",
             Across(14, 22, kWhite, kSteelDark));
}

void PaintPie(QPainter& painter) {
    FillText(painter,
             "M 3,14 L 23,14 L 20,21.4 C 19.8,22 19.2,22.4 18.6,22.4 L 7.4,22.4 C 6.8,22.4 6.2,22 6,21.4 Z",
             Across(3, 23, kSteel, kSteelDark));
    FillText(painter, "M 3.4,14 C 4,7.6 8.6,5 13,5 C 17.4,5 22,7.6 22.6,14 Z",
             Across(4, 22, Rgb(0xE6B566), Rgb(0x9C6A2A)));
    StrokeText(painter, "M 10,9.4 L 9,12 M 13,8.6 L 13,11.8 M 16,9.4 L 17,12", kWalnutDark, 1.4);
    FillText(painter, "B 2,13 22,2.8 1.4", Rgb(0xD09A4C));
}

// --- The sea ---

void PaintBoat(QPainter& painter) {
    FillText(painter, "M 12,3 L 12,16.6 L 4,16.6 C 7.6,13 10.6,8.6 12,3 Z",
             Across(4, 12, kTileLight, kTileDark));
    FillText(painter, "M 13.6,5.4 C 16.6,8.6 19.6,12.6 21,16.6 L 13.6,16.6 Z", kMadderLight);
    FillText(painter, "R 12,2.4 1.6,16", kWalnutLight);
    FillText(painter, "M 3,17.8 L 23,17.8 L 20,22 L 6.6,22 Z", Across(3, 23, kWalnutLight, kWalnutDark));
    StrokeText(painter, "M 1,23.4 Q 4,21.8 7,23.4 Q 10,25 13,23.4 Q 16,21.8 19,23.4 Q 22,25 25,23.4", kWater,
               1.6);
}

void PaintAnchor(QPainter& painter) {
    StrokeText(painter, "M 13,9 L 13,21.6 M 8.4,11.4 L 17.6,11.4", kSteel, 2.4);
    StrokeText(painter, "M 5,15.6 C 5.4,20.4 8.8,22.2 13,22.2 C 17.2,22.2 20.6,20.4 21,15.6", kSteel, 2.4);
    StrokeText(painter, "E 13,6.2 2.5,2.5", kSteel, 1.9);
    FillText(painter, "M 2.8,17.4 L 5.2,13.2 L 8,17 Z M 23.2,17.4 L 20.8,13.2 L 18,17 Z", kSteel);
}

void PaintLighthouse(QPainter& painter) {
    FillText(painter, "M 15,5.6 L 26,2.4 L 26,9.6 Z", Sheer(kBrassLight, 0.5));
    FillText(painter, "M 11,5.6 L 0,2.4 L 0,9.6 Z", Sheer(kBrassLight, 0.28));
    FillText(painter, "M 10.2,9 L 15.8,9 L 17.6,22 L 8.4,22 Z", Across(8, 18, kTileLight, kTileDark));
    FillText(painter,
             "M 9.75,12 L 16.25,12 L 16.7,15.2 L 9.3,15.2 Z M 8.9,18.4 L 17.1,18.4 L 17.6,22 L 8.4,22 Z",
             kMadderLight);
    FillText(painter, "R 11,4.2 4,4 ", kBrassLight);
    FillText(painter, "M 10,4.4 L 13,1.4 L 16,4.4 Z R 9.4,8 7.2,1.5", kMadderDark);
    FillText(painter, "M 3,24 C 5,20.6 9,21.4 13,21.4 C 17,21.4 21,20.6 23,24 Z", kSteelDark);
}

void PaintFish(QPainter& painter) {
    FillText(painter, "M 17,13 L 24,7 C 22.6,11 22.6,15 24,19 Z M 9,8 C 11,4.4 15,4.6 16.6,8.6 Z",
             kBrassDark);
    FillText(painter, "M 2.4,13.4 C 6,6.4 14.6,6 19.6,13 C 14.6,20 6,20 2.4,13.4 Z",
             Across(3, 20, kBrassLight, Rgb(0xA86A2E)));
    StrokeText(painter, "M 9.4,9 C 11,11.4 11,15.2 9.4,17.6", kBrassDark, 1.4);
    FillText(painter, "E 6.6,12 1.4,1.4", kInkDark);
}

void PaintCompass(QPainter& painter) {
    FillText(painter, "E 13,13 10.6,10.6", Across(3, 23, kBrassLight, kBrassDark));
    FillText(painter, "E 13,13 8.2,8.2", Across(4, 22, kInkDark, kInkLight));
    FillText(painter, "M 13,5.4 L 15.8,13 L 10.2,13 Z", kMadderPale);
    FillText(painter, "M 13,20.6 L 15.8,13 L 10.2,13 Z", kVellum);
    FillText(painter, "E 13,13 1.3,1.3", kBrass);
}

void PaintWaves(QPainter& painter) {
    painter.fillRect(QRectF(0, 0, 26, 26), Across(0, 26, kWaterDark, Rgb(0x24434F)));
    for (int row = 0; row < 3; ++row) {
        painter.save();
        painter.translate(row % 2 == 0 ? 0 : -6.5, 5.5 + 7.5 * row);
        StrokeText(painter,
                   "M -1,0 C 3,0 3,-3.4 6.5,-3.4 C 5,-1.4 7,0 9,0 L 12,0 C 16,0 16,-3.4 19.5,-3.4 "
                   "C 18,-1.4 20,0 22,0 L 25,0 C 29,0 29,-3.4 32.5,-3.4",
                   kWater, 1.7);
        painter.restore();
    }
}

// --- The nursery ---

void PaintBall(QPainter& painter) {
    const QPainterPath ball = Shape("E 13,13 10,10");
    Fill(painter, ball, Across(3, 23, kTileLight, kTileDark));
    painter.save();
    painter.setClipPath(ball);
    FillText(painter, "M 13,13 C 8,10 6,6 7,0 L 17,0 C 16,5 15,9 13,13 Z", kMadderLight);
    FillText(painter, "M 13,13 C 17,10 21,9 26,10 L 26,20 C 21,19 17,17 13,13 Z", kBrass);
    FillText(painter, "M 13,13 C 11,17 8,21 4,25 L -2,15 C 4,16 9,15 13,13 Z", kIndigo);
    painter.restore();
    FillText(painter, "E 13,13 1.6,1.6", kVellum);
    FillText(painter, "E 9.4,8.4 2.2,1.5", Sheer(kWhite, 0.5));
}

void PaintBlocks(QPainter& painter) {
    const auto block = [&](QPointF at, QColor colour, const char* letter) {
        const QRectF area(at, QSizeF(9.6, 9.6));
        FillRound(painter, area, 1.4, Darker(colour, 0.35));
        FillRound(painter, area.adjusted(0, 0, -1.2, -1.2), 1.2, colour);
        FillRound(painter, area.adjusted(1.4, 1.4, -2.6, -2.6), 0.8, kVellum);
        Fill(painter, LetteringIn(Face::SansBold, letter, area.center() - QPointF(0.6, 0.6), 4.6),
             Darker(colour, 0.3));
    };
    block({2.8, 13}, kMadderLight, "A");
    block({13.4, 13}, kIndigo, "B");
    block({8.2, 3}, kLeafDark, "C");
}

void PaintKite(QPainter& painter) {
    FillText(painter, "M 17,2.4 L 23,9.4 L 13,18 L 9,6.4 Z", kBrassLight);
    FillText(painter, "M 17,2.4 L 16,10.2 L 9,6.4 Z M 23,9.4 L 13,18 L 16,10.2 Z", kMadderLight);
    StrokeText(painter, "M 13,18 C 10,19 10.6,22.6 7.6,21.8 C 5,21 5.6,18.4 3.4,19.4", kVellum, 1.2);
    FillText(painter, "M 8.4,19.4 L 11.6,22.6 L 8,23.8 L 11.4,18.8 Z", kLeaf);
}

void PaintDuck(QPainter& painter) {
    FillText(painter,
             "M 3.6,12.4 C 5.6,14.4 9,14.6 11.2,13.4 C 9,10.6 9.6,4.4 15,4 C 19.4,4 21.4,8 19.6,11.2 "
             "C 18.8,12.6 20.6,13.6 20.8,16.4 C 21,20.4 17.6,22.4 12.6,22.4 C 6.6,22.4 2.6,18.6 3.6,12.4 Z",
             Across(4, 21, kBrassLight, kBrass));
    FillText(painter, "M 19.6,7.4 L 24.4,8.6 C 24,10.4 21.6,11 19.8,10.4 Z", Rgb(0xC8642E));
    FillText(painter, "E 16.4,7.8 1.3,1.4", kInkDark);
    StrokeText(painter, "M 8.2,17 C 10.6,19.6 14.4,19 15.6,15.8", kBrassDark, 1.5);
}

void PaintApple(QPainter& painter) {
    FillText(painter,
             "M 13,8 C 17.6,4.8 22.6,7.6 22,13 C 21.4,18.6 17.4,23.4 13,21.6 C 8.6,23.4 4.6,18.6 4,13 "
             "C 3.4,7.6 8.4,4.8 13,8 Z",
             Across(4, 22, kMadderPale, kMadderDark));
    StrokeText(painter, "M 13,8.4 C 12.8,6 13.2,4.4 14.2,3", kWalnutLight, 1.7);
    FillText(painter, "M 14.4,5.6 C 16,2.6 19,2.2 21.2,3 C 20,5.8 17,6.8 14.4,5.6 Z", kLeaf);
    FillText(painter, "E 8.2,11.4 1.5,2.4", Sheer(kWhite, 0.45));
}

void PaintStarToy(QPainter& painter) {
    QPainterPath star;
    for (int k = 0; k < 10; ++k) {
        const double turn = k * std::numbers::pi / 5 - std::numbers::pi / 2;
        const double radius = k % 2 == 0 ? 9.6 : 4.9;
        const QPointF tip(13 + radius * std::cos(turn), 13.6 + radius * std::sin(turn));
        k == 0 ? star.moveTo(tip) : star.lineTo(tip);
    }
    star.closeSubpath();
    Stroke(painter, star, kBrassDark, 2.6);
    Stroke(painter, star, kBrassLight, 1.4);
    Fill(painter, star, Across(4, 22, kBrassLight, kBrass));
    FillText(painter, "E 11,13 1,1.3 E 15,13 1,1.3", kInkDark);
    StrokeText(painter, "M 10.6,15.6 Q 13,17.8 15.4,15.6", kInkDark, 1.1);
}

// --- The house ---

// A shelf of books from edge to edge: side by side they make a wall.
void PaintBookcase(QPainter& painter) {
    painter.fillRect(QRectF(0, 0, 26, 26), kWalnutDark);
    struct Book {
        double x, width, height;
        QColor colour;
    };
    const std::array<std::array<Book, 5>, 2> shelves = {{
        {{{1, 4, 9, kMadder},
          {5.4, 4.6, 8, kIndigo},
          {10.4, 4, 9.4, kBrassDark},
          {14.8, 5, 8.4, kLeafDark},
          {20.2, 4.6, 9.2, kWater}}},
        {{{1, 5, 8.4, kLeafDark},
          {6.4, 4, 9.4, kBrassDark},
          {10.8, 5, 8, kMadder},
          {16.2, 4, 9.2, kWater},
          {20.6, 4.4, 8.6, kIndigoDark}}},
    }};
    for (std::size_t shelf = 0; shelf < shelves.size(); ++shelf) {
        const double floor = shelf == 0 ? 11.4 : 23.4;
        for (const Book& book : shelves[shelf]) {
            const QRectF spine(book.x, floor - book.height, book.width, book.height);
            painter.fillRect(spine, Ramp(spine.topLeft(), spine.topRight(), Lighter(book.colour, 0.14),
                                         Darker(book.colour, 0.3)));
            painter.fillRect(QRectF(spine.left() + 0.8, spine.top() + 1.8, spine.width() - 1.6, 1.1), kBrass);
        }
        painter.fillRect(QRectF(0, floor, 26, 1.6), kWalnutLight);
        painter.fillRect(QRectF(0, floor + 1.6, 26, 1), Darker(kWalnutDark, 0.4));
    }
}

// The end of a wall, beside a door.
void PaintColumn(QPainter& painter) {
    const auto stone = Ramp(QPointF(8, 0), QPointF(18, 0), kTileLight, Rgb(0x9A8B68));
    FillText(painter, "R 8.6,6 8.8,14", stone);
    StrokeText(painter, "M 11.4,7.5 L 11.4,19 M 14.6,7.5 L 14.6,19", Sheer(kTileEdge, 0.8), 1.1);
    FillText(painter, "B 5.4,2.6 15.2,3.6 1 B 7,6 12,1.6 0.6 B 7,18.8 12,1.6 0.6 B 5.4,20 15.2,3.6 1", stone);
}

void PaintLamp(QPainter& painter) {
    QRadialGradient glow(QPointF(13, 11), 13);
    glow.setColorAt(0, Sheer(kBrassLight, 0.45));
    glow.setColorAt(1, Sheer(kBrassLight, 0));
    painter.fillRect(QRectF(0, 0, 26, 26), glow);
    FillText(painter, "R 12,13 2,8", kBrass);
    FillText(painter, "B 7.6,20.4 10.8,2.6 1.3", Across(7, 19, kBrass, kBrassDark));
    FillText(painter, "M 9.4,4 L 16.6,4 L 21,14 L 5,14 Z", Across(5, 21, kFlash, kBrass));
}

void PaintArmchair(QPainter& painter) {
    FillText(painter, "B 6,3.6 14,14 4", Across(6, 20, kMadderLight, kMadderDark));
    FillText(painter, "R 6.4,20 2.2,3.4 R 17.4,20 2.2,3.4", kWalnutLight);
    FillText(painter, "B 7,13.4 12,5.4 2", kMadderPale);
    FillText(painter, "B 3.4,10.6 5,10.4 2.4 B 17.6,10.6 5,10.4 2.4 R 5,18 16,3", kMadder);
    FillText(painter, "E 10.4,8 0.9,0.9 E 13,7 0.9,0.9 E 15.6,8 0.9,0.9", kMadderDark);
}

void PaintPlant(QPainter& painter) {
    FillText(painter, "M 13,16 C 4,16 2.6,10 3.6,6.4 C 8.6,7 12.4,10 13,16 Z", kLeafDark);
    FillText(painter, "M 13,16 C 22,16 23.4,10 22.4,6.4 C 17.4,7 13.6,10 13,16 Z", kLeafDark);
    FillText(painter, "M 13,16 C 7.6,11.4 9,5 13,2.4 C 17,5 18.4,11.4 13,16 Z",
             Across(8, 18, kLeaf, kLeafDark));
    FillText(painter, "M 7,15.6 L 19,15.6 L 17.4,23.4 L 8.6,23.4 Z",
             Across(7, 19, Rgb(0xD08A5A), Rgb(0x8A4A2A)));
    FillText(painter, "B 6,14.6 14,2.8 1", Rgb(0xC07848));
}

// --- The night sky ---

void PaintBurst(QPainter& painter, QPointF middle, double radius, QColor colour) {
    for (int k = 0; k < 10; ++k) {
        const double turn = k * std::numbers::pi / 5;
        const QPointF out(std::cos(turn), std::sin(turn));
        QPainterPath ray;
        ray.moveTo(middle + out * radius * 0.34);
        ray.lineTo(middle + out * radius * 0.78);
        Stroke(painter, ray, colour, 1.5);
        FillEllipse(painter, middle + out * radius, 1.1, 1.1, Lighter(colour, 0.4));
    }
    FillEllipse(painter, middle, 1.6, 1.6, kWhite);
}

void PaintBrassBurst(QPainter& painter) { PaintBurst(painter, {13, 13}, 9.8, kBrassLight); }
void PaintMadderBurst(QPainter& painter) { PaintBurst(painter, {13, 13}, 9.8, kMadderPale); }
void PaintBlueBurst(QPainter& painter) { PaintBurst(painter, {13, 13}, 9.8, Rgb(0x7FA8D8)); }

void PaintRocket(QPainter& painter) {
    painter.translate(13, 13);
    painter.rotate(40);
    FillText(painter, "M -1.6,6.4 L 1.6,6.4 L 0,12.4 Z", kBrassLight);
    FillText(painter, "B -0.6,3 1.2,9 0.6", kWalnutLight);
    FillText(painter, "R -3.2,-5.6 6.4,12", Ramp(QPointF(-3, 0), QPointF(3, 0), kTileLight, kTileDark));
    FillText(painter, "R -3.2,-3.4 6.4,2.2 R -3.2,1.4 6.4,2.2", kMadder);
    FillText(painter, "M -4.2,-5.4 L 0,-12 L 4.2,-5.4 Z", kMadderLight);
}

void PaintMoon(QPainter& painter) {
    FillText(painter,
             "M 16.6,3.6 C 8,2.4 3,9.4 5,15.6 C 7,22 15.4,24 21.2,18.6 C 14,19.6 9.6,10.6 16.6,3.6 Z",
             Across(4, 20, kFlash, kBrass));
    FillText(painter, "E 19.6,7 1.2,1.2 E 22,12 0.9,0.9", kVellum);
}

void PaintNight(QPainter& painter) {
    painter.fillRect(QRectF(0, 0, 26, 26), Across(0, 26, Rgb(0x232C48), Rgb(0x141A2C)));
    FillText(painter, "E 7,6 1,1 E 19,10 1.2,1.2 E 10,19 0.9,0.9", Sheer(kVellum, 0.8));
}

}  // namespace

void PaintBareDesk(QPainter& painter) {
    painter.fillRect(QRectF(0, 0, 26, 26), Darker(kCloth, 0.32));
    for (int k = -26; k < 26; k += 4) {  // the twill, without its own pattern: this picture is stretched
        QPainterPath ridge;
        ridge.moveTo(k, 26);
        ridge.lineTo(k + 26, 0);
        Stroke(painter, ridge, Sheer(kClothLight, 0.12), 1.4);
    }
    painter.fillRect(QRectF(0, 0, 26, 3),
                     Ramp(QPointF(0, 0), QPointF(0, 3), Sheer(kBlack, 0.42), Sheer(kBlack, 0)));
    painter.fillRect(QRectF(0, 0, 3, 26),
                     Ramp(QPointF(0, 0), QPointF(3, 0), Sheer(kBlack, 0.42), Sheer(kBlack, 0)));
}

const Motifs kDeskMotifs = {PaintInkPot, PaintQuillPen, PaintSeal, PaintBook, PaintCandle, PaintBareDesk};
const Motifs kDiamondMotifs = {PaintBareDesk, PaintQuillPen, PaintSeal, PaintBook, PaintCandle, PaintInkPot};
const Motifs kKitchenMotifs = {PaintPot, PaintWhisk, PaintMug, PaintPepper, PaintSpoonAndFork, PaintPie};
const Motifs kSeaMotifs = {PaintBoat, PaintAnchor, PaintLighthouse, PaintFish, PaintCompass, PaintWaves};
const Motifs kNurseryMotifs = {PaintBall, PaintBlocks, PaintKite, PaintDuck, PaintApple, PaintStarToy};
const Motifs kHouseMotifs = {PaintBookcase, PaintColumn, PaintLamp, PaintArmchair, PaintPlant, PaintBareDesk};
const Motifs kNightSkyMotifs = {PaintBrassBurst, PaintRocket,    PaintMadderBurst,
                                PaintMoon,       PaintBlueBurst, PaintNight};

}  // namespace quillet
