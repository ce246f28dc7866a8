#include "patterns.h"

#include <cmath>
#include <numbers>

#include "colours.h"
#include "pictures.h"

namespace quillet {
namespace {

// Ridges of four pixels run from the lower left to the upper right; every other block of four by four lies
// lower. The steps are a few levels: what stands on the pattern must not tire the eye.
QImage Twill(QColor base, QColor light, QColor dark, int scale) {
    const int size = kPatternSize * scale;
    QImage pattern(size, size, QImage::Format_RGB32);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const double onRidge = static_cast<double>((x + y) % (4 * scale)) / scale;
            const double height = std::cos(onRidge * std::numbers::pi / 2);
            const bool low = (x / (4 * scale) + y / (4 * scale)) % 2 == 1;
            const QColor peak = height > 0 ? light : dark;
            pattern.setPixelColor(x, y, Mix(base, peak, std::abs(height) * (low ? 0.55 : 1.0)));
        }
    }
    return pattern;
}

}  // namespace

QImage DrawCloth(int scale) {
    using namespace palette;
    return Twill(kCloth, kClothLight, kClothDark, scale);
}

QImage DrawShadow(int scale) {
    using namespace palette;
    return Twill(kShadow, Mix(kShadow, kCloth, 0.12), Darker(kShadow, 0.08), scale);
}

QImage DrawPopupGround(int scale) {
    using namespace palette;
    return Twill(kPopup, kPopupLight, kPopupDark, scale);
}

void LayCloth(QPainter& painter, QRect area, QPoint phase, int scale) {
    QBrush brush(DrawCloth(scale));
    brush.setTransform(QTransform::fromTranslate(-phase.x(), -phase.y()).scale(1.0 / scale, 1.0 / scale));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(area, brush);
    painter.restore();
}

}  // namespace quillet
