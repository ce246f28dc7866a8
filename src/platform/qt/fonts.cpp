#include "platform/fonts.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <span>
#include <string>
#include <tuple>

#include "platform/qt/desktop.h"

namespace quillet {
namespace {

// What to look for when a face is not installed.
struct Family {
    std::string_view beginning;  // of the face's name
    QFont::StyleHint kind;
};
constexpr std::array kFamilies{
    Family{"Arial", QFont::SansSerif},
    Family{"Times", QFont::Serif},
    Family{"Courier", QFont::Monospace},
};
constexpr std::string_view kBold = " Bold";

bool IsFixedPitch(const Font& font) { return font.face.starts_with("Courier"); }

// Of the toolkit's font that draws a font at a scale.
QFont FontAt(const Font& font, int scale) {
    std::string_view family = font.face;
    const bool bold = family.ends_with(kBold);
    if (bold) family.remove_suffix(kBold.size());
    QFont result(ToQString(family));
    const auto* known = std::ranges::find_if(
        kFamilies, [&](const Family& other) { return family.starts_with(other.beginning); });
    result.setStyleHint(known == kFamilies.end() ? QFont::AnyStyle : known->kind);
    result.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    result.setBold(bold);
    result.setKerning(false);
    // Sizes are those of 96 dots an inch whatever the display; larger scales enlarge them exactly.
    result.setPixelSize(std::max(qRound(font.points * 96 / 72.0), 1) * scale);
    result.setHintingPreference(scale == 1 ? QFont::PreferFullHinting : QFont::PreferVerticalHinting);
    return result;
}

QString Printable(std::string_view text) {
    QString result = ToQString(text);
    for (QChar& character : result) {
        if (character.category() == QChar::Other_Control) character = QLatin1Char(' ');
    }
    return result;
}

int FixedAdvance(const Font& font) {
    return qRound(QFontMetricsF(FontAt(font, 1)).horizontalAdvance(QLatin1Char('x')));
}

// Draws so that the text is as long as at scale 1: columns must stand below each other at every scale.
void DrawAtPen(QPainter& painter, QPointF pen, const Font& font, std::string_view text, int scale) {
    const QString printable = Printable(text);
    QFont drawn = FontAt(font, scale);
    if (IsFixedPitch(font)) {
        painter.setFont(drawn);
        for (QChar character : printable) {
            painter.drawText(pen, QString(character));
            pen.rx() += FixedAdvance(font) * scale;
        }
        return;
    }
    const double missing = TextWidth(font, text) * scale - QFontMetricsF(drawn).horizontalAdvance(printable);
    drawn.setLetterSpacing(QFont::AbsoluteSpacing, missing / static_cast<double>(printable.size()));
    painter.setFont(drawn);
    painter.drawText(pen, printable);
}

// What is not empty of an image of coverages; the pen stood at that pixel.
TextMask Cropped(const QImage& image, QPoint pen) {
    QRect inked;
    for (int y = 0; y < image.height(); ++y) {
        const std::span line(image.constScanLine(y), static_cast<std::size_t>(image.width()));
        const auto isInked = [](uchar coverage) { return coverage != 0; };
        const auto first = std::ranges::find_if(line, isInked);
        if (first == line.end()) continue;
        const auto last = std::find_if(line.rbegin(), line.rend(), isInked);
        inked |= QRect(QPoint(static_cast<int>(first - line.begin()), y),
                       QPoint(static_cast<int>(line.rend() - last) - 1, y));
    }
    TextMask mask{.left = inked.left() - pen.x(),
                  .top = inked.top() - pen.y(),
                  .width = inked.width(),
                  .height = inked.height(),
                  .coverage = {}};
    for (int y = inked.top(); y <= inked.bottom(); ++y) {
        const uchar* line = image.constScanLine(y) + inked.left();
        mask.coverage.insert(mask.coverage.end(), line, line + inked.width());
    }
    return mask;
}

TextMask DrawMask(const Font& font, std::string_view text, int scale) {
    const QFontMetricsF metrics(FontAt(font, scale));
    // Letters may reach beyond their advance and beyond the lines' height.
    const int margin = static_cast<int>(std::ceil(metrics.height()));
    const int width = TextWidth(font, text) * scale + 2 * margin;
    const QPoint pen(margin, static_cast<int>(std::ceil(metrics.ascent())) + margin / 2);
    QImage image(width, pen.y() + static_cast<int>(std::ceil(metrics.descent())) + margin / 2,
                 QImage::Format_Grayscale8);
    image.fill(0);
    QPainter painter(&image);
    painter.setPen(Qt::white);
    DrawAtPen(painter, pen, font, text, scale);
    painter.end();
    return Cropped(image, pen);
}

// The same few texts are drawn again and again.
using MaskKey = std::tuple<std::string, int, std::string, int>;
std::map<MaskKey, TextMask> maskCache;
constexpr std::size_t kMostMasks = 500;
constexpr std::size_t kLongestText = 1000;  // no line of a window is longer; a picture of it has its limits

}  // namespace

FontMetrics MetricsOf(const Font& font) {
    const QFontMetrics metrics(FontAt(font, 1));
    return {.height = metrics.ascent() + metrics.descent(),
            .descent = metrics.descent(),
            .averageWidth = IsFixedPitch(font) ? FixedAdvance(font) : metrics.averageCharWidth()};
}

int TextWidth(const Font& font, std::string_view text) {
    if (IsFixedPitch(font)) return FixedAdvance(font) * static_cast<int>(text.size());
    return qRound(QFontMetricsF(FontAt(font, 1)).horizontalAdvance(Printable(text)));
}

TextMask MaskOfText(const Font& font, std::string_view text, int scale) {
    text = text.substr(0, kLongestText);
    if (text.empty()) return {};
    MaskKey key(font.face, font.points, text, scale);
    const auto known = maskCache.find(key);
    if (known != maskCache.end()) return known->second;
    if (maskCache.size() >= kMostMasks) maskCache.clear();
    return maskCache[std::move(key)] = DrawMask(font, text, scale);
}

}  // namespace quillet
