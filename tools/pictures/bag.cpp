#include <array>

#include "brush.h"
#include "patterns.h"
#include "pictures.h"

// A madder pouch with a brass cord. It stands on the cloth, which is painted in, and slumps as it empties.
namespace quillet {
namespace {

using namespace palette;

constexpr int kWidth = 96, kHeight = 56;
constexpr QPoint kPhase(7, 6);  // where the bag's corner lies in the pattern, in all layouts of the window
constexpr double kMiddle = 48, kFloor = 51;

// How the pouch stands while there are letters in it.
struct Stand {
    double height, width, neck;
    int tiles;  // that peep out
};
constexpr std::array<Stand, 3> kStands = {{{40, 68, 17, 2}, {33, 71, 18, 1}, {25, 75, 20, 0}}};

QPainterPath Body(const Stand& stand) {
    const double top = kFloor - stand.height + 10;
    const double h = kFloor - top;
    const double n = stand.neck / 2, w = stand.width / 2;
    QPainterPath body;
    body.moveTo(kMiddle - n, top);
    body.cubicTo(kMiddle - w * 0.62, top + h * 0.06, kMiddle - w * 0.98, top + h * 0.34, kMiddle - w,
                 top + h * 0.68);
    body.cubicTo(kMiddle - w * 1.01, top + h * 0.94, kMiddle - w * 0.86, kFloor, kMiddle - w * 0.64, kFloor);
    body.lineTo(kMiddle + w * 0.64, kFloor);
    body.cubicTo(kMiddle + w * 0.86, kFloor, kMiddle + w * 1.01, top + h * 0.94, kMiddle + w, top + h * 0.68);
    body.cubicTo(kMiddle + w * 0.98, top + h * 0.34, kMiddle + w * 0.62, top + h * 0.06, kMiddle + n, top);
    body.closeSubpath();
    return body;
}

// The gathered cloth above the cord.
QPainterPath Ruff(const Stand& stand) {
    const double top = kFloor - stand.height;
    const QPainterPath ruff = Shape(
        "M -.5,10 C -.62,7.6 -1.02,5.4 -.98,2.4 C -.8,1.2 -.66,2.6 -.52,3.6 C -.36,2 -.24,2 -.1,3.8 "
        "C .08,2.2 .24,2.2 .36,3.8 C .52,2.2 .7,1.2 .98,2.4 C 1.02,5.4 .62,7.6 .5,10 Z");
    return Scaled(ruff, stand.neck, 1).translated(kMiddle, top);
}

// Folds run from the cord down over the belly; side -1 is the lit one.
QPainterPath Fold(const Stand& stand, double side) {
    const double top = kFloor - stand.height + 11.5;
    const double h = kFloor - top;
    QPainterPath fold;
    fold.moveTo(kMiddle + side * stand.neck * 0.4, top);
    fold.cubicTo(kMiddle + side * stand.width * 0.2, top + h * 0.14, kMiddle + side * stand.width * 0.31,
                 top + h * 0.36, kMiddle + side * stand.width * 0.33, top + h * 0.66);
    return fold;
}

QPainterPath Cord(const Stand& stand) {
    const double top = kFloor - stand.height + 10;
    QPainterPath cord;
    cord.moveTo(kMiddle + stand.neck * 0.3, top + 0.6);
    cord.cubicTo(kMiddle + stand.neck * 0.55, top + 5, kMiddle + stand.neck * 0.4, top + stand.height * 0.2,
                 kMiddle + stand.neck * 0.75, top + stand.height * 0.4);
    return cord;
}

struct PeepingTile {
    QPointF middle;
    double turn;  // degrees
    const char* letter;
};

std::array<PeepingTile, 2> TilesOf(const Stand& stand) {
    const double top = kFloor - stand.height;
    if (stand.tiles == 1) return {{{{kMiddle + 2, top - 2}, 12, "E"}, {}}};
    return {{{{kMiddle - 6.4, top - 1.2}, -17, "Q"}, {{kMiddle + 6.2, top - 0.8}, 13, "A"}}};
}

constexpr double kTileSize = 12.5;
constexpr QRectF kTileArea(-kTileSize / 2, -kTileSize / 2, kTileSize, kTileSize);

void PaintTile(QPainter& painter, const PeepingTile& tile) {
    painter.save();
    painter.translate(tile.middle);
    painter.rotate(tile.turn);
    FillRound(painter, kTileArea.adjusted(0.4, 0.4, 1.3, 1.3), 1.6, kTileEdge);
    FillRound(painter, kTileArea, 1.5, Ramp(kTileArea, kTileLight, kTile));
    Fill(painter, LetteringIn(Face::SerifBold, tile.letter, {0, -1.2}, 6.4), kInkDark);
    painter.restore();
}

QBrush Velvet(double left, double top, double right) {
    QLinearGradient velvet(QPointF(left, top), QPointF(right, kFloor));
    velvet.setColorAt(0, kMadderPale);
    velvet.setColorAt(0.28, Mix(kMadderLight, kMadder, 0.2));
    velvet.setColorAt(0.6, kMadder);
    velvet.setColorAt(1, kMadderDark);
    return velvet;
}

void PaintClosedBag(QPainter& painter, const Stand& stand) {
    const double top = kFloor - stand.height;
    const double left = kMiddle - stand.width / 2, right = kMiddle + stand.width / 2;
    const auto tiles = TilesOf(stand);
    for (int k = 0; k < stand.tiles; ++k) PaintTile(painter, tiles[static_cast<std::size_t>(k)]);

    const QPainterPath body = Body(stand);
    Stroke(painter, body, kMadderLine, 1.5);
    Fill(painter, body, Velvet(left, top + 8, right));
    painter.save();
    painter.setClipPath(body);
    FillEllipse(painter, {kMiddle + 6, kFloor + 2}, stand.width * 0.5, 6, Sheer(kMadderDark, 0.5));
    for (const double side : {-1.0, -0.34, 0.34, 1.0}) {
        const QPainterPath fold = Fold(stand, side);
        Stroke(painter, fold, Sheer(kMadderDark, 0.75), 1.5);
        Stroke(painter, fold.translated(-1.4, 0.2), Sheer(kMadderPale, side < 0 ? 0.55 : 0.28), 1.1);
    }
    painter.restore();

    const QPainterPath ruff = Ruff(stand);
    Stroke(painter, ruff, kMadderLine, 1.3);
    Fill(painter, ruff,
         Ramp(QPointF(kMiddle - stand.neck, top), QPointF(kMiddle + stand.neck, top + 8), kMadderPale,
              kMadder));
    for (const double side : {-0.28, 0.06, 0.36}) {
        QPainterPath pleat;
        pleat.moveTo(kMiddle + side * stand.neck * 1.3, top + 4.6);
        pleat.lineTo(kMiddle + side * stand.neck * 0.8, top + 8.6);
        Stroke(painter, pleat, Sheer(kMadderDark, 0.7), 1.1);
    }
    const QPainterPath cord = Cord(stand);
    Stroke(painter, cord, kMadderLine, 2.8);
    Stroke(painter, cord, kBrass, 1.6);
    FillEllipse(painter, cord.currentPosition() + QPointF(0, 1.4), 2.9, 3.3, kMadderLine);
    FillEllipse(painter, cord.currentPosition() + QPointF(-0.2, 1.2), 2.2, 2.6, kBrassLight);
    const QRectF tie(kMiddle - stand.neck / 2 - 2, top + 8.4, stand.neck + 4, 3.8);
    FillRound(painter, tie.adjusted(-0.6, -0.6, 0.6, 0.6), 2.4, kMadderLine);
    FillRound(painter, tie, 1.9, Ramp(tie.topLeft(), tie.bottomLeft(), kBrassLight, kBrassDark));
}

// It lies flat with its mouth open, so that one sees there is nothing in it.
void PaintEmptyBag(QPainter& painter) {
    const QPainterPath body =
        Shape("M 12,51 C 4,44 22,36.4 31,37 L 66,36.6 C 76,37.6 92,44.6 84,51 C 80,52 16,52 12,51 Z");
    Stroke(painter, body, kMadderLine, 1.5);
    Fill(painter, body, Velvet(8, 36, 88));
    for (const char* fold : {"M 26,43 Q 23,47 16,49.4", "M 38,46 Q 37,48.6 33,50.6",
                             "M 57,46 Q 59,48.6 64,50.6", "M 69,43 Q 73,46.6 80,49"}) {
        Stroke(painter, Shape(fold), Sheer(kMadderDark, 0.75), 1.4);
    }
    Fill(painter, Shape("E 48.5,39.4 20.6,6.4"), kMadderLine);
    Fill(painter, Shape("E 48.5,39 20,5.8"), Ramp(QPointF(28, 34), QPointF(68, 44), kBrassLight, kBrassDark));
    Fill(painter, Shape("E 48.5,39.2 18,4.5"), kMadder);
    Fill(painter, Shape("E 48.8,39.8 16.4,3.6"), Rgb(0x2A0D12));
    const QPainterPath cord = Shape("M 68,39 C 78,37 80,45 87,47.4");
    Stroke(painter, cord, kMadderLine, 2.8);
    Stroke(painter, cord, kBrass, 1.6);
    FillEllipse(painter, {88, 48.2}, 2.9, 2.8, kMadderLine);
    FillEllipse(painter, {87.8, 48}, 2.2, 2.1, kBrassLight);
}

}  // namespace

QImage DrawBag(int fill, int scale) {
    return Draw(kWidth, kHeight, scale, [&](QPainter& painter) {
        LayCloth(painter, {0, 0, kWidth, kHeight}, kPhase, scale);
        FillEllipse(painter, {kMiddle + 4, kFloor}, 40, 4.2, Sheer(kShadow, 0.8));
        fill == 4 ? PaintEmptyBag(painter)
                  : PaintClosedBag(painter, kStands[static_cast<std::size_t>(fill - 1)]);
    });
}

QImage DrawBagInk(int scale) {
    return DrawInk(kWidth, kHeight, scale, [](QPainter& painter) {
        const Stand& stand = kStands[0];
        const auto paper = [&](const QPainterPath& shape) {
            Stroke(painter, shape, kWhite, 2.4);  // white is ink
            Fill(painter, shape, kBlack);
        };
        for (const PeepingTile& tile : TilesOf(stand)) {
            painter.save();
            painter.translate(tile.middle);
            painter.rotate(tile.turn);
            QPainterPath area;
            area.addRect(kTileArea);
            paper(area);
            Fill(painter, LetteringIn(Face::SerifBold, tile.letter, {0, -1}, 7), kWhite);
            painter.restore();
        }
        paper(Body(stand));
        for (const double side : {-1.0, -0.34, 0.34, 1.0}) Stroke(painter, Fold(stand, side), kWhite, 1.1);
        paper(Ruff(stand));
        FillRound(painter, {kMiddle - 11, kFloor - stand.height + 8.4, 22, 3.8}, 1.9, kWhite);
        Stroke(painter, Cord(stand), kWhite, 1.5);
        FillEllipse(painter, Cord(stand).currentPosition() + QPointF(0, 1.4), 2.4, 2.8, kWhite);
    });
}

}  // namespace quillet
