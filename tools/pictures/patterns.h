// The twill that the window, the shadows and the pop-up views are laid with.
#pragma once

#include <QImage>
#include <QPainter>

namespace quillet {

constexpr int kPatternSize = 8;

// Lays the cloth of the desk over an area of a picture, in the phase that joins it to the window's when the
// picture's corner lies at `phase` of the pattern.
void LayCloth(QPainter& painter, QRect area, QPoint phase, int scale);

}  // namespace quillet
