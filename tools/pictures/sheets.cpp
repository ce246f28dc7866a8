#include <array>
#include <cmath>
#include <string_view>

#include "brush.h"
#include "pictures.h"

// Letters, marks and values are black ink on white without any grey. Letters and values come from the fonts'
// own pixels, hinted for that very size; what has no such pixels is drawn large and made black or white.
namespace quillet {
namespace {

using namespace palette;

constexpr int kSheetColumns = 9, kSheetRows = 5;
constexpr int kBlankCell = 26, kMarkRow = 3;
constexpr int kMarkUnits = 26;  // marks are drawn for the big board and shrunk for the small one

struct Cell {
    QImage& sheet;
    int pitch, scale;
    int column, row;

    int Size() const { return (pitch - 1) * scale; }
    // What lies outside the cell is lost.
    void Ink(int x, int y) const {
        if (x < 0 || y < 0 || x >= Size() || y >= Size()) return;
        sheet.setPixelColor((column * pitch + 1) * scale + x, (row * pitch + 1) * scale + y, kBlack);
    }
    // Inks what is black in the picture, moved.
    void Stamp(const QImage& ink, int dx = 0, int dy = 0) const {
        for (int y = 0; y < ink.height(); ++y) {
            for (int x = 0; x < ink.width(); ++x) {
                if (qRed(ink.pixel(x, y)) < 128) Ink(x + dx, y + dy);
            }
        }
    }
    void Stamp(const Drawing& drawing) const { Stamp(DrawInk(pitch - 1, pitch - 1, scale, drawing)); }
};

QImage EmptySheet(int columns, int rows, int pitch, int scale) {
    QImage sheet((columns * pitch + 1) * scale, (rows * pitch + 1) * scale, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    return sheet;
}

// --- Letters ---

struct Glyph {
    QImage ink;    // no wider than the letter
    int baseline;  // the first row below the letters
};

// The font's own pixels of a letter or digit.
Glyph Rasterise(QChar character, QFont font) {
    constexpr int kSize = 128, kBaseline = 96, kLeft = 32;
    font.setStyleStrategy(QFont::NoAntialias);
    QImage ground(kSize, kSize, QImage::Format_RGB32);
    ground.fill(Qt::white);
    QPainter painter(&ground);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(kLeft, kBaseline, QString(character));
    painter.end();
    int left = kSize, right = -1, top = kSize;
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            if (qRed(ground.pixel(x, y)) >= 128) continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
        }
    }
    return {ground.copy(left, top, right - left + 1, kSize - top), kBaseline - top};
}

// Where letters stand in a cell, in pixels of scale 1.
struct LetterPlace {
    int em;
    double middle;
    int baseline;
};

LetterPlace LetterPlaceAt(int pitch) {
    return pitch == kBigPitch ? LetterPlace{20, 11.6, 16} : LetterPlace{18, 10.2, 14};
}

// The tail of the Q: a stroke from inside the bowl to its lower right that stays above the value's place, as
// the font's own would not.
void StampTailOfQ(const Cell& cell, double middle, int baseline, int scale) {
    for (int step = 0; step < 5 * scale; ++step) {
        const int width = step < scale ? 2 * scale : 3 * scale;
        const int x = static_cast<int>(middle) - 2 * scale + step;
        for (int i = 0; i < width; ++i) cell.Ink(x + i, baseline - 5 * scale + step);
    }
}

void StampLetter(const Cell& cell, char letter) {
    const LetterPlace place = LetterPlaceAt(cell.pitch);
    const bool isQ = letter == 'Q';
    const Glyph glyph =
        Rasterise(QChar(isQ ? 'O' : letter), PixelFont(Face::SerifBold, place.em * cell.scale));
    const int width = glyph.ink.width();
    const int margin = 2 * cell.scale;
    const int room = cell.Size() - margin;
    int left = std::max(margin, static_cast<int>(std::lround(place.middle * cell.scale - width / 2.0)));
    if (left + width > room) left = std::max(cell.scale, room - width);
    const int baseline = place.baseline * cell.scale;
    cell.Stamp(glyph.ink, left, baseline - glyph.baseline);
    if (isQ) StampTailOfQ(cell, left + width / 2.0, baseline, cell.scale);
}

// A key line, which a blank keeps when its letter is laid over it: so it is known without its colour.
void StampBlank(const Cell& cell) {
    const double last = cell.pitch == kBigPitch ? 23 : 21;
    cell.Stamp([last](QPainter& painter) {
        QPainterPath line;
        line.addRoundedRect(QRectF(1, 1, last - 1, last - 1), 2.6, 2.6);
        line.addRoundedRect(QRectF(2, 2, last - 3, last - 3), 1.6, 1.6);
        painter.drawPath(line);
    });
}

// --- Marks ---

// Leaves in the four corners; the middle stays free for a bonus mark.
void PaintStartMark(QPainter& painter) {
    for (int corner = 0; corner < 4; ++corner) {
        painter.drawPath(Shape("M -12,-12 L -3.4,-12 Q -10.4,-10.4 -12,-3.4 Z"));
        painter.rotate(90);
    }
}

// Kinds 1, 3, 5, 7 multiply a letter by 2 to 5: the digit in a ring, as a tile is one round thing. Kinds 2,
// 4, 6, 8 multiply a word: the digit between arrows along the line.
void PaintBonusMark(QPainter& painter, int kind) {
    const bool word = kind % 2 == 0;
    const int factor = (kind + 1) / 2 + 1;
    painter.drawPath(word ? Shape("M 12,0 L 6.6,-5.4 L 6.6,5.4 Z M -12,0 L -6.6,-5.4 L -6.6,5.4 Z")
                          : Shape("E 0,0 10.1,10.1 E 0,0 8.5,8.5"));
    const QPointF middle(factor == 4 ? -0.4 : 0, 0);  // a 4 is heavier on its right
    painter.drawPath(LetteringIn(Face::SansBold, QString::number(factor), middle, word ? 12 : 10));
}

void StampMark(const Cell& cell, int kind) {
    cell.Stamp([&](QPainter& painter) {
        const double unit = static_cast<double>(cell.pitch - 1) / kMarkUnits;
        painter.scale(unit, unit);
        painter.translate(kMarkUnits / 2, kMarkUnits / 2);
        kind == 0 ? PaintStartMark(painter) : PaintBonusMark(painter, kind);
    });
}

// --- Values ---

// No font has good digits of five and six pixels, so these are drawn by hand.
constexpr std::array<std::array<std::string_view, 6>, 10> kBigDigits = {{
    {".##.", "#..#", "#..#", "#..#", "#..#", ".##."},
    {"..#.", ".##.", "..#.", "..#.", "..#.", ".###"},
    {".##.", "#..#", "...#", "..#.", ".#..", "####"},
    {"###.", "...#", ".##.", "...#", "...#", "###."},
    {"..#.", ".##.", "#.#.", "####", "..#.", "..#."},
    {"####", "#...", "###.", "...#", "...#", "###."},
    {".##.", "#...", "###.", "#..#", "#..#", ".##."},
    {"####", "...#", "..#.", "..#.", ".#..", ".#.."},
    {".##.", "#..#", ".##.", "#..#", "#..#", ".##."},
    {".##.", "#..#", "#..#", ".###", "...#", ".##."},
}};
constexpr std::array<std::array<std::string_view, 5>, 10> kSmallDigits = {{
    {".##.", "#..#", "#..#", "#..#", ".##."},
    {"..#.", ".##.", "..#.", "..#.", ".###"},
    {"###.", "...#", ".##.", "#...", "####"},
    {"###.", "...#", ".##.", "...#", "###."},
    {"..##", ".#.#", "#..#", "####", "...#"},
    {"####", "#...", "###.", "...#", "###."},
    {".##.", "#...", "###.", "#..#", ".##."},
    {"####", "...#", "..#.", ".#..", ".#.."},
    {".##.", "#..#", ".##.", "#..#", ".##."},
    {".##.", "#..#", ".###", "...#", ".##."},
}};
// The value of a blank is small enough to stand inside the blank's line.
constexpr std::array<std::string_view, 4> kZero = {".#.", "#.#", "#.#", ".#."};

template <typename Rows>
QImage FromRows(const Rows& rows) {
    QImage ink(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()), QImage::Format_RGB32);
    ink.fill(Qt::white);
    for (std::size_t y = 0; y < rows.size(); ++y) {
        for (std::size_t x = 0; x < rows[y].size(); ++x) {
            if (rows[y][x] == '#') ink.setPixelColor(static_cast<int>(x), static_cast<int>(y), kBlack);
        }
    }
    return ink;
}

// At scale 2 there are enough pixels for the font's digits: the largest that are no higher than asked, in the
// face whose strokes are two pixels wide.
QImage FontDigit(int digit, int height) {
    const Face face = height < 12 ? Face::SansBold : Face::Sans;
    for (int em = 2 * height;; --em) {
        const Glyph eight = Rasterise('8', PixelFont(face, em));
        if (eight.baseline > height) continue;
        const Glyph glyph = Rasterise(QChar('0' + digit), PixelFont(face, em));
        return glyph.ink.copy(0, 0, glyph.ink.width(), glyph.baseline);
    }
}

QImage DigitInk(int digit, int pitch, int scale) {
    const bool big = pitch == kBigPitch;
    if (scale > 1) return FontDigit(digit, (big ? 6 : 5) * scale);
    const auto at = static_cast<std::size_t>(digit);
    return big ? FromRows(kBigDigits[at]) : FromRows(kSmallDigits[at]);
}

void StampZero(const Cell& cell) {
    const int end = (cell.pitch - 1 - (cell.pitch == kBigPitch ? 5 : 4)) * cell.scale;
    const QImage ink = cell.scale > 1 ? FontDigit(0, 4 * cell.scale) : FromRows(kZero);
    cell.Stamp(ink, end - ink.width(), end - ink.height());
}

void StampValue(const Cell& cell, int value) {
    if (value == 0) return StampZero(cell);
    const int end = (cell.pitch - 4) * cell.scale;  // behind the last pixel, in both directions
    if (value < 10) {
        const QImage ink = DigitInk(value, cell.pitch, cell.scale);
        return cell.Stamp(ink, end - ink.width(), end - ink.height());
    }
    const QImage one = DigitInk(1, cell.pitch, cell.scale);
    const QImage zero = DigitInk(0, cell.pitch, cell.scale);
    const int zeroAt = end + cell.scale - zero.width();  // two digits may reach a little further
    cell.Stamp(zero, zeroAt, end - zero.height());
    cell.Stamp(one, zeroAt - cell.scale / 2 - one.width(), end - one.height());
}

}  // namespace

QImage DrawLetterSheet(int pitch, int scale) {
    QImage sheet = EmptySheet(kSheetColumns, kSheetRows, pitch, scale);
    for (int n = 0; n <= kBlankCell; ++n) {
        const Cell cell{sheet, pitch, scale, n % kSheetColumns, n / kSheetColumns};
        n == kBlankCell ? StampBlank(cell) : StampLetter(cell, static_cast<char>('A' + n));
    }
    for (int kind = 0; kind < kFirstBlocked; ++kind) StampMark({sheet, pitch, scale, kind, kMarkRow}, kind);
    return sheet;
}

QImage DrawValueSheet(int pitch, int scale) {
    constexpr int kHighest = 10;
    QImage sheet = EmptySheet(kHighest + 1, 1, pitch, scale);
    for (int value = 0; value <= kHighest; ++value) StampValue({sheet, pitch, scale, value, 0}, value);
    return sheet;
}

}  // namespace quillet
