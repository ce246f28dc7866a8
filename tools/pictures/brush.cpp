#include "brush.h"

#include <QFont>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

namespace quillet {
namespace {

constexpr int kFinePixels = 8;  // in a row of one pixel of ink, before it becomes black or white

// The shape that a text draws, command by command.
class ShapeReader {
  public:
    explicit ShapeReader(const char* text) : at(text), end(text + std::strlen(text)) {}

    QPainterPath Read() {
        while (SkipBlanks(), at < end) {
            if (std::isalpha(static_cast<unsigned char>(*at))) command = *at++;
            Add();
        }
        return shape;
    }

  private:
    void SkipBlanks() {
        while (at < end && (*at == ' ' || *at == ',')) ++at;
    }

    double Number() {
        SkipBlanks();
        double value = 0;
        const auto [next, error] = std::from_chars(at, end, value);
        if (error != std::errc()) qFatal("no number in a shape: %s", at);
        at = next;
        return value;
    }

    QPointF Point() {
        const double x = Number();
        return {x, Number()};
    }

    void Add() {
        if (command == 'Z') return shape.closeSubpath();
        const QPointF a = Point();
        if (command == 'M') return shape.moveTo(a);
        if (command == 'L') return shape.lineTo(a);
        const QPointF b = Point();
        switch (command) {
            case 'Q':
                return shape.quadTo(a, b);
            case 'C':
                return shape.cubicTo(a, b, Point());
            case 'E':
                return shape.addEllipse(a, b.x(), b.y());
            case 'R':
                return shape.addRect(QRectF(a, QSizeF(b.x(), b.y())));
            case 'B': {
                const double radius = Number();
                return shape.addRoundedRect(QRectF(a, QSizeF(b.x(), b.y())), radius, radius);
            }
            default:
                qFatal("no such command in a shape: %c", command);
        }
    }

    const char* at;
    const char* end;
    char command = 'M';
    QPainterPath shape;
};

QFont FontOf(Face face) {
    const bool sans = face == Face::Sans || face == Face::SansBold;
    QFont font(sans ? "Liberation Sans" : "Liberation Serif");
    font.setBold(face == Face::SansBold || face == Face::SerifBold || face == Face::SerifBoldItalic);
    font.setItalic(face == Face::SerifItalic || face == Face::SerifBoldItalic);
    return font;
}

void SmoothWithoutOutlines(QPainter& painter) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setPen(Qt::NoPen);
}

// --- Quills: in units of their length and width, with the nib at 0,0 and the feather on the right ---

constexpr double kVaneBegin = 0.29, kNibEnd = 0.45;

// Turns the painter as long as it lives.
class QuillFrame {
  public:
    QuillFrame(QPainter& quillPainter, QPointF nib, double quillLength, double angle, double width)
        : painter(quillPainter), length(quillLength), breadth(quillLength * width) {
        painter.save();
        painter.translate(nib);
        painter.rotate(-angle);
    }
    ~QuillFrame() { painter.restore(); }
    QuillFrame(const QuillFrame&) = delete;
    QuillFrame& operator=(const QuillFrame&) = delete;

    QPainterPath At(const QPainterPath& shape) const { return Scaled(shape, length, breadth); }
    double Length() const { return length; }

  private:
    QPainter& painter;
    double length, breadth;
};

void FillShaft(QPainter& painter, const QuillFrame& frame, const QuillColours& colours) {
    static const QPainterPath kShaft =
        Shape("M 0,0 L .07,-.1 C .4,-.13 .7,-.12 .97,-.24 C .7,.03 .4,.12 .07,.11 Z");
    const double reach = frame.Length() * kVaneBegin;
    Fill(painter, frame.At(kShaft), Ramp({reach * 0.9, 0}, {reach * 1.5, 0}, colours.nib, colours.shaft));
}

// Colours of 16 bits a component to 8, in the order of a Bayer matrix: a long dark ramp would show its
// steps. Colours that 8 bits can tell stay as they are.
QImage Dithered(const QImage& fine) {
    constexpr int kLevel = 257;  // 65535 / 255
    QImage picture(fine.size(), QImage::Format_RGB32);
    const auto threshold = [](unsigned x, unsigned y) {
        unsigned order = 0;
        for (int bit = 0; bit < 3; ++bit, x >>= 1, y >>= 1) order = order << 2 | ((x ^ y) & 1) << 1 | (y & 1);
        return static_cast<int>(order * kLevel / 64);
    };
    for (int y = 0; y < fine.height(); ++y) {
        for (int x = 0; x < fine.width(); ++x) {
            const QRgba64 from = fine.pixelColor(x, y).rgba64();
            const int add = threshold(static_cast<unsigned>(x), static_cast<unsigned>(y));
            picture.setPixel(x, y,
                             qRgb((from.red() + add) / kLevel, (from.green() + add) / kLevel,
                                  (from.blue() + add) / kLevel));
        }
    }
    return picture;
}

}  // namespace

QImage Draw(int width, int height, int scale, const Drawing& drawing, QColor ground) {
    QImage picture(width * scale, height * scale, QImage::Format_RGBA64_Premultiplied);
    picture.fill(ground);
    QPainter painter(&picture);
    SmoothWithoutOutlines(painter);
    painter.scale(scale, scale);
    drawing(painter);
    painter.end();
    return Dithered(picture);
}

QImage DrawInk(int width, int height, int scale, const Drawing& drawing) {
    const QImage fine = Draw(
        width, height, scale * kFinePixels,
        [&](QPainter& painter) {
            painter.setBrush(Qt::white);
            drawing(painter);
        },
        palette::kBlack);
    QImage ink(width * scale, height * scale, QImage::Format_RGB32);
    for (int y = 0; y < ink.height(); ++y) {
        for (int x = 0; x < ink.width(); ++x) {
            int inked = 0;
            for (int i = 0; i < kFinePixels * kFinePixels; ++i) {
                const QPoint at(x * kFinePixels + i % kFinePixels, y * kFinePixels + i / kFinePixels);
                inked += qRed(fine.pixel(at));
            }
            const bool black = 2 * inked >= 255 * kFinePixels * kFinePixels;
            ink.setPixelColor(x, y, black ? palette::kBlack : palette::kWhite);
        }
    }
    return ink;
}

QPainterPath Shape(const char* text) { return ShapeReader(text).Read(); }

QPainterPath Scaled(const QPainterPath& shape, double x, double y) {
    return QTransform::fromScale(x, y).map(shape);
}

QLinearGradient Ramp(QPointF from, QPointF to, QColor first, QColor last) {
    QLinearGradient ramp(from, to);
    ramp.setColorAt(0, first);
    ramp.setColorAt(1, last);
    return ramp;
}

QLinearGradient Ramp(QRectF area, QColor first, QColor last) {
    return Ramp(area.topLeft(), area.bottomRight(), first, last);
}

void Fill(QPainter& painter, const QPainterPath& shape, const QBrush& brush) {
    painter.fillPath(shape, brush);
}

void FillRound(QPainter& painter, QRectF area, double radius, const QBrush& brush) {
    QPainterPath shape;
    shape.addRoundedRect(area, radius, radius);
    painter.fillPath(shape, brush);
}

void FillEllipse(QPainter& painter, QPointF centre, double radiusX, double radiusY, const QBrush& brush) {
    QPainterPath shape;
    shape.addEllipse(centre, radiusX, radiusY);
    painter.fillPath(shape, brush);
}

void Stroke(QPainter& painter, const QPainterPath& shape, QColor colour, double width) {
    painter.strokePath(shape, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void Frame(QPainter& painter, QRectF area, QColor topLeft, QColor bottomRight) {
    const double right = area.right() - 1;
    const double bottom = area.bottom() - 1;
    painter.fillRect(QRectF(area.left(), area.top(), area.width(), 1), topLeft);
    painter.fillRect(QRectF(area.left(), area.top(), 1, area.height()), topLeft);
    painter.fillRect(QRectF(area.left(), bottom, area.width(), 1), bottomRight);
    painter.fillRect(QRectF(right, area.top(), 1, area.height()), bottomRight);
}

void BrassFrame(QPainter& painter, QRectF area) {
    using namespace palette;
    Frame(painter, area, kBrassDark, Darker(kBrassDark, 0.4));
    Frame(painter, area.adjusted(1, 1, -1, -1), kBrassLight, kBrassDark);
    Frame(painter, area.adjusted(2, 2, -2, -2), kBrass, kBrass);
}

QPainterPath Lettering(Face face, const QString& text, double em) {
    constexpr int kOutlinePixels = 256;  // so large that no hinting bends the outlines
    QFont font = FontOf(face);
    font.setPixelSize(kOutlinePixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath shape;
    shape.addText(0, 0, font, text);
    return Scaled(shape, em / kOutlinePixels, em / kOutlinePixels);
}

QPainterPath LetteringIn(Face face, const QString& text, QPointF centre, double height) {
    QPainterPath shape = Lettering(face, text, height);
    const double grow = height / shape.boundingRect().height();
    shape = Scaled(shape, grow, grow);
    return shape.translated(centre - shape.boundingRect().center());
}

QFont PixelFont(Face face, int pixels) {
    QFont font = FontOf(face);
    font.setPixelSize(pixels);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

void Quill(QPainter& painter, QPointF nib, double length, double angle, const QuillColours& colours,
           double width) {
    static const QPainterPath kUpper = Shape(
        "M .29,0 C .34,-.85 .52,-1.12 .68,-1.12 L .70,-.86 L .735,-1.08 C .84,-1.02 .93,-.66 1,-.25 "
        "C .85,-.02 .6,0 .29,0 Z");
    static const QPainterPath kLower = Shape(
        "M .29,0 C .36,.60 .46,.80 .55,.80 L .575,.56 L .61,.78 C .76,.70 .90,.20 1,-.25 "
        "C .85,-.02 .6,0 .29,0 Z");
    const QuillFrame frame(painter, nib, length, angle, width);
    Fill(painter, frame.At(kUpper), colours.vane);
    Fill(painter, frame.At(kLower), colours.underVane);
    FillShaft(painter, frame, colours);
    if (length <= 30) return;  // barbs would only blur a small one
    for (int k = 0; k < 5; ++k) {
        const double x = 0.42 + 0.10 * k;
        const double reach = 1 - std::abs(x - 0.6) * 1.5;
        QPainterPath barb;
        barb.moveTo(x + 0.05, -0.62 * reach);
        barb.lineTo(x, -0.06);
        barb.lineTo(x + 0.045, 0.36 * reach);
        Stroke(painter, frame.At(barb), Sheer(colours.shaft, 0.4 * colours.shaft.alphaF()),
               std::max(0.5, length * 0.007));
    }
}

void QuillNib(QPainter& painter, QPointF nib, double length, double angle, const QuillColours& colours,
              double width) {
    const QuillFrame frame(painter, nib, length, angle, width);
    painter.setClipRect(QRectF(-length, -length, length * (1 + kNibEnd), 2 * length), Qt::IntersectClip);
    FillShaft(painter, frame, colours);
}

}  // namespace quillet
