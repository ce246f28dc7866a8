#include "brush.h"
#include "patterns.h"
#include "pictures.h"

// The program's name: an O whose tail is the nib of a quill that passes behind it, and "uillet".
namespace quillet {
namespace {

using namespace palette;

struct WordMark {
    QPointF origin;  // left end of the baseline
    double size;     // of the font
};

void PaintWordMark(QPainter& painter, const WordMark& mark) {
    constexpr double kAngle = 143, kBreadth = 0.16;  // of the quill
    const double s = mark.size;
    const QPainterPath o = Lettering(Face::SerifBoldItalic, "O", s).translated(mark.origin);
    const QRectF bowl = o.boundingRect();
    const QPainterPath rest =
        Lettering(Face::SerifBoldItalic, "uillet", s).translated(bowl.right() + 0.075 * s, mark.origin.y());
    const QPointF nib(bowl.right() + 0.20 * s, mark.origin.y() + 0.20 * s);
    const double length = 1.62 * s;
    const auto quill = [&](const QuillColours& colours) {
        Quill(painter, nib, length, kAngle, colours, kBreadth);
    };

    painter.save();  // the shadow of all of it
    const double drop = std::max(1.3, 0.026 * s);
    painter.translate(drop, drop);
    quill({kShadow, kShadow, kShadow});
    Fill(painter, o, kShadow);
    Fill(painter, rest, kShadow);
    painter.restore();

    const QuillColours brass{kBrassLight, kBrass, kBrassDark, kBrassLight};
    quill(brass);
    const auto ivory = Ramp(mark.origin - QPointF(0, 0.7 * s), mark.origin, kTileLight, Rgb(0xE9DBB4));
    Fill(painter, o, ivory);
    Fill(painter, rest, ivory);

    // The nib comes out over the bowl and throws a narrow shadow on it.
    painter.save();
    painter.setClipPath(o);
    QuillNib(painter, nib + QPointF(-0.4, 1) * drop * 0.5, length, kAngle, {{}, {}, kBrassDark}, kBreadth);
    painter.restore();
    QuillNib(painter, nib, length, kAngle, brass, kBreadth);
}

// --- The splash picture ---

void PaintLooseTile(QPainter& painter, QPointF middle, double turn, char letter) {
    constexpr double kSize = 40;
    constexpr QRectF kArea(-kSize / 2, -kSize / 2, kSize, kSize);
    painter.save();
    painter.translate(middle + QPointF(4, 5));
    painter.rotate(turn);
    for (int k = 0; k < 4; ++k)
        FillRound(painter, kArea.adjusted(k - 2, k - 2, 2 - k, 2 - k), 5, Sheer(kBlack, 0.10));
    painter.restore();
    painter.save();
    painter.translate(middle);
    painter.rotate(turn);
    FillRound(painter, kArea.adjusted(0, 0, 2.4, 2.4), 4, kTileEdge);
    FillRound(painter, kArea.adjusted(0, 0, 1.2, 1.2), 3.6, kTileDark);
    FillRound(painter, kArea, 3.4, Ramp(kArea, kTileLight, Mix(kTile, kTileDark, 0.25)));
    Fill(painter, LetteringIn(Face::SerifBold, QString(QChar(letter)), {-1, -1}, 21), kInkDark);
    painter.restore();
}

constexpr int kSplashWidth = 640, kSplashHeight = 414, kSplashMargin = 20;

// A tile with a Q whose tail is a quill, in 32 units. A tiny one leaves out what would be less than a pixel.
constexpr double kIconUnits = 32;

void PaintIcon(QPainter& painter, bool tiny) {
    const double edge = tiny ? 0 : 1;
    const QRectF tile(edge, edge, kIconUnits - 2 * edge, kIconUnits - 2 * edge);
    FillRound(painter, tile, 4.6, kTileEdge);
    FillRound(painter, tile.adjusted(0, 0, -1.2, -1.2), 4.4, kTileDark);
    FillRound(painter, tile.adjusted(0, 0, -2.4, -2.4), 4, Ramp(tile, kTileLight, kTile));
    const QPointF middle(tiny ? 14 : 14.2, tiny ? 13.6 : 14);
    Fill(painter, LetteringIn(Face::SerifBold, "O", middle, tiny ? 21 : 19.5), kInkDark);
    const QPointF nib(tiny ? 13 : 14, tiny ? 14 : 16);
    Quill(painter, nib, 18, -42, {kMadder, kMadderDark, tiny ? kMadderDark : kInkDark}, tiny ? 0.22 : 0.19);
}

}  // namespace

QImage DrawLogo(int scale) {
    constexpr int kWidth = 225, kHeight = 46;
    return Draw(kWidth, kHeight, scale, [&](QPainter& painter) {
        LayCloth(painter, {0, 0, kWidth, kHeight}, {0, 0}, scale);
        PaintWordMark(painter, {{52, 34}, 40});
    });
}

QImage DrawSplash(int scale) {
    const QRect desk = QRect(0, 0, kSplashWidth, kSplashHeight)
                           .adjusted(kSplashMargin, kSplashMargin, -kSplashMargin, -kSplashMargin);
    return Draw(
        kSplashWidth, kSplashHeight, scale,
        [&](QPainter& painter) {
            LayCloth(painter, desk, {0, 0}, scale);
            QRadialGradient lamp(QPointF(250, 140), 440);
            lamp.setColorAt(0, Sheer(kWhite, 0.12));
            lamp.setColorAt(0.35, Sheer(kWhite, 0.0));
            lamp.setColorAt(0.36, Sheer(kBlack, 0.0));
            lamp.setColorAt(1, Sheer(kBlack, 0.42));
            painter.fillRect(desk, lamp);
            PaintWordMark(painter, {{148, 186}, 118});
            PaintLooseTile(painter, {430, 318}, -9, 'W');
            PaintLooseTile(painter, {478, 326}, 5, 'O');
            PaintLooseTile(painter, {526, 316}, -4, 'R');
            PaintLooseTile(painter, {572, 328}, 11, 'D');

            painter.resetTransform();
            painter.setFont(PixelFont(Face::SerifItalic, 18 * scale));
            painter.setPen(kVellum);
            painter.drawText(QRect(kSplashMargin * scale, 238 * scale, desk.width() * scale, 30 * scale),
                             Qt::AlignCenter, "a crossword tile game for one to four players");
        },
        kWhite);
}

QImage DrawIcon(int pixels) {
    QImage icon(pixels, pixels, QImage::Format_ARGB32);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / kIconUnits, pixels / kIconUnits);
    PaintIcon(painter, pixels < 24);
    painter.end();
    return icon;
}

QImage DrawAboutIcon(int scale) {
    constexpr int kSize = 64, kMargin = 8;
    return Draw(kSize, kSize, scale, [&](QPainter& painter) {
        LayCloth(painter, {0, 0, kSize, kSize}, {0, 0}, scale);
        painter.translate(kMargin, kMargin);
        painter.scale((kSize - 2 * kMargin) / kIconUnits, (kSize - 2 * kMargin) / kIconUnits);
        PaintIcon(painter, false);
    });
}

}  // namespace quillet
