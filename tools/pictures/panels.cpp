#include "brush.h"
#include "pictures.h"

// Panels lie under text that the window writes; where it does, they stay dark enough (info) or light enough
// (notes) to read it, and quiet.
namespace quillet {
namespace {

using namespace palette;

constexpr int kPanelWidth = 215;

// Of the info panel under yellow text.
constexpr double kMostLuminance = 0.12;

// --- Info panel ---

void PaintInkPotAndQuill(QPainter& painter) {
    const auto dim = [](QColor colour) { return Capped(colour, kMostLuminance); };
    FillEllipse(painter, {172, 134}, 38, 6.5, Sheer(kBlack, 0.28));
    Quill(painter, {163, 112}, 104, 63, {dim(Rgb(0x566C88)), dim(Rgb(0x3F546F)), dim(Rgb(0x6E8198))});
    Fill(painter, Shape("B 141,104 46,30 10"),
         Ramp(QPointF(140, 100), QPointF(190, 140), Rgb(0x4A607C), Rgb(0x1B2837)));
    Fill(painter, Shape("B 145,121 38,10 7"), Sheer(kInkDark, 0.55));
    Fill(painter, Shape("B 151,97 26,8 3"),
         Ramp(QPointF(151, 97), QPointF(177, 105), dim(Rgb(0x5C7896)), Rgb(0x344860)));
    Fill(painter, Shape("E 164,99.5 9.5,2.2"), Rgb(0x0F1720));
    Fill(painter, Shape("B 146,109 3.4,16 1.7"), dim(Rgb(0x6F88A4)));
}

// --- Note panel ---

// Where the window writes, in the panel's own units: headings, four players, and the boxes with a label.
constexpr int kHeadingBottom = 21, kFirstRow = 25, kRowHeight = 14, kTableBottom = 84;
constexpr int kBoxWidth = 16, kBoxHeight = 13;

void PaintVellum(QPainter& painter, QRectF area) {
    painter.fillRect(area,
                     Ramp(area.topLeft(), QPointF(area.width() * 0.6, area.height()), kVellumLight, kVellum));
    Frame(painter, area, kVellumEdge, Darker(kVellumEdge, 0.35));
    Frame(painter, area.adjusted(1, 1, -1, -1), kWhite, kVellumRule);
}

void PaintTable(QPainter& painter, int width, int height) {
    const auto rule = [&](int y) {
        painter.fillRect(QRect(2, y, width - 4, 1), kVellumRule);
        painter.fillRect(QRect(2, y + 1, width - 4, 1), kWhite);
    };
    painter.fillRect(QRect(2, 2, width - 4, kHeadingBottom - 2), kVellumDark);
    rule(kHeadingBottom);
    for (int row = 0; row < 4; row += 2) {
        painter.fillRect(QRect(6, kFirstRow + kRowHeight * row, width - 12, kRowHeight),
                         Sheer(kVellumDark, 0.55));
    }
    rule(kTableBottom);
    painter.fillRect(QRect(2, kTableBottom + 2, width - 4, height - kTableBottom - 4),
                     Ramp({0, kTableBottom + 2.0}, {width * 0.7, height + 0.0}, kPaper, kPaperDark));
}

void PaintWatermark(QPainter& painter) {
    const auto pale = [](double part) { return Mix(kPaperDark, kVellumRule, part); };
    Quill(painter, {58, 148}, 96, 34, {pale(0.30), pale(0.46), pale(0.68)});
    Stroke(painter, Shape("M 58,148 C 44,152 30,141 18,148"), pale(0.68), 1.3);
}

void PaintBox(QPainter& painter, QRectF area) {
    painter.fillRect(area, kVellumDark);
    Frame(painter, area, kVellumEdge, kVellumEdge);
    Frame(painter, area.adjusted(1, 1, -1, -1), kWhite, kVellumRule);
}

}  // namespace

QImage DrawInfoPanel(int scale) {
    constexpr QRectF kArea(0, 0, kPanelWidth, 150);
    return Draw(kPanelWidth, 150, scale, [&](QPainter& painter) {
        QRadialGradient light(QPointF(40, 20), 230);
        light.setColorAt(0, kInkLight);
        light.setColorAt(0.55, kInk);
        light.setColorAt(1, kInkDark);
        painter.fillRect(kArea, light);
        PaintInkPotAndQuill(painter);
        BrassFrame(painter, kArea);
    });
}

QImage DrawNotePanel(bool bigBoard, int scale) {
    const int height = bigBoard ? 195 : 140;
    return Draw(kPanelWidth, height, scale, [&](QPainter& painter) {
        PaintVellum(painter, QRectF(0, 0, kPanelWidth, height));
        PaintTable(painter, kPanelWidth, height);
        if (bigBoard) PaintWatermark(painter);
        const double statistics = height - kBoxHeight;
        const double bonusWords = statistics - (bigBoard ? 70 : 14);
        for (const double top : {statistics, bonusWords}) {
            PaintBox(painter, {kPanelWidth - kBoxWidth, top, kBoxWidth, kBoxHeight});
        }
    });
}

// The small board leaves out every ninth column and row, so nothing here is thinner than two.
QImage DrawRack(int scale) {
    constexpr int kWidth = 229, kHeight = 38;
    return Draw(kWidth, kHeight, scale, [&](QPainter& painter) {
        painter.fillRect(QRect(0, 0, kWidth, kHeight), Ramp(QPointF(0, 0), QPointF(0, kHeight), kWalnutLight,
                                                            Mix(kWalnut, kWalnutDark, 0.35)));
        for (int k = 0; k < 22; ++k) {  // grain, in no order that the eye would find
            const double x = k * 83 % 260 - 60;
            const double y = k * 17 % 39 + 0.5;
            const double length = 60 + k * 47 % 110;
            QPainterPath line;
            line.moveTo(x, y);
            line.cubicTo(x + length * 0.3, y + 1.2, x + length * 0.6, y - 1.2, x + length, y + 0.4);
            Stroke(painter, line, Sheer(k % 2 == 0 ? kWalnutLight : kWalnutDark, 0.25), 1);
        }
        painter.fillRect(QRect(0, 0, kWidth, 2), Lighter(kWalnutLight, 0.28));
        painter.fillRect(QRect(0, 0, 2, kHeight), Lighter(kWalnutLight, 0.14));
        painter.fillRect(QRect(0, kHeight - 2, kWidth, 2), kWalnutDark);
        painter.fillRect(QRect(kWidth - 2, 0, 2, kHeight), kWalnutDark);
        painter.fillRect(QRect(4, 3, kWidth - 8, kHeight - 6), kWalnutDark);
        painter.fillRect(QRect(6, 5, kWidth - 12, kHeight - 10),
                         Ramp(QPointF(0, 5), QPointF(0, kHeight - 5), kChannel, kChannelLight));
        painter.fillRect(QRect(4, kHeight - 5, kWidth - 8, 2), kWalnutLight);
    });
}

QImage DrawLock(int scale) {
    return DrawInk(9, 11, scale, [](QPainter& painter) {
        painter.drawPath(
            Shape("M 2,5 L 2,2 C 2,.6 3,0 4.5,0 C 6,0 7,.6 7,2 L 7,5 L 6,5 L 6,2.4 C 6,1.4 5.4,1 4.5,1 "
                  "C 3.6,1 3,1.4 3,2.4 L 3,5 Z R 0,5 9,6 R 4,7 1,2"));
    });
}

QImage DrawButton(const char* text, ButtonState state, int scale) {
    constexpr int kWidth = 60, kHeight = 36, kEm = 13, kBaseline = 22;
    const bool pressed = state == ButtonState::Pressed;
    const bool flashing = state == ButtonState::Flashing;
    return Draw(
        kWidth, kHeight, scale,
        [&](QPainter& painter) {
            const double w = kWidth, h = kHeight;
            FillRound(painter, {0, 0, w, h}, 6, pressed ? kCloth : kShadow);
            FillRound(painter, {0, 0, w - 1, h - 1}, 6, kBrassDark);
            FillRound(painter, {1, 1, w - 3, h - 4}, 5,
                      Ramp(QPointF(0, 0), QPointF(0, h), pressed ? kBrassDark : kBrassLight, kBrass));
            FillRound(painter, {3, 3, w - 7, h - 8}, 4, kBrassDark);
            const QColor top = flashing ? Lighter(kInk, 0.06) : pressed ? kTileDark : Lighter(kVellum, 0.55);
            const QColor bottom = flashing ? kInkDark : kVellumDark;
            const double sunk = pressed ? 1 : 0;
            FillRound(painter, {4, 4 + sunk, w - 9, h - 10 - sunk}, 3.4,
                      Ramp(QPointF(0, 4), QPointF(0, h - 6), top, bottom));

            // The font's own pixels, not a picture of them made larger.
            QFont font = PixelFont(Face::SansBold, kEm * scale);
            font.setLetterSpacing(QFont::AbsoluteSpacing, scale);
            const int width = QFontMetrics(font).horizontalAdvance(text) - scale;
            const int shift = pressed ? scale : 0;
            painter.resetTransform();
            painter.setFont(font);
            painter.setPen(flashing ? kFlash : kInkDark);
            painter.drawText(((kWidth - 1) * scale - width) / 2 + shift, kBaseline * scale + shift, text);
        },
        kCloth);
}

}  // namespace quillet
