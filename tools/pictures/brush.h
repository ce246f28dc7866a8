// What all pictures are drawn with. A picture is drawn by one piece of code in one unit, the pixel of a
// display at scale 1, and is made at scale 1 and 2: at 2 the same shapes come out finer.
//
// Light falls from the upper left: solids are light on top and left, dark on bottom and right.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <functional>

#include "colours.h"

namespace quillet {

using Drawing = std::function<void(QPainter&)>;

// A picture of width x height units: scale times as many pixels. The painter draws in units, smoothly and
// without outlines.
QImage Draw(int width, int height, int scale, const Drawing& drawing, QColor ground = palette::kBlack);

// A picture of black ink on white without any grey: a pixel is black where at least half of it is inked.
// The drawing's colours do not matter.
QImage DrawInk(int width, int height, int scale, const Drawing& drawing);

// A shape from a text: "M x,y" begins at a point, "L x,y ..." goes on straight, "Q c p ..." and "C c d p ..."
// along curves, "Z" closes, "E x,y rx,ry" is an ellipse, "R x,y w,h" a rectangle and "B x,y w,h r" one with
// round corners.
QPainterPath Shape(const char* text);

// The shape as it is when its unit is `x` by `y`.
QPainterPath Scaled(const QPainterPath& shape, double x, double y);

QLinearGradient Ramp(QPointF from, QPointF to, QColor first, QColor last);
// From the upper left corner to the lower right one.
QLinearGradient Ramp(QRectF area, QColor first, QColor last);

void Fill(QPainter& painter, const QPainterPath& shape, const QBrush& brush);
void FillRound(QPainter& painter, QRectF area, double radius, const QBrush& brush);
void FillEllipse(QPainter& painter, QPointF centre, double radiusX, double radiusY, const QBrush& brush);
// A line along the shape, with round ends.
void Stroke(QPainter& painter, const QPainterPath& shape, QColor colour, double width);

// A frame of one unit along the inside of the area.
void Frame(QPainter& painter, QRectF area, QColor topLeft, QColor bottomRight);
// The three units of brass round the panels.
void BrassFrame(QPainter& painter, QRectF area);

// Letters as shapes. `em` is the size of the font.
enum class Face { Sans, SansBold, SerifBold, SerifItalic, SerifBoldItalic };
QPainterPath Lettering(Face face, const QString& text, double em);
// Likewise, but as high as `height` and with its middle at `centre`.
QPainterPath LetteringIn(Face face, const QString& text, QPointF centre, double height);

// A font of so many pixels for text that is drawn at the scale of the picture, hinted.
QFont PixelFont(Face face, int pixels);

struct QuillColours {
    QColor vane, underVane, shaft;
    QColor nib = shaft;
};

// A quill with its nib at a point; the feather goes up at that angle (degrees, 0 is right, 90 is up).
void Quill(QPainter& painter, QPointF nib, double length, double angle, const QuillColours& colours,
           double width = 0.17);

// The lower part of its shaft, where it lies over what hides the rest.
void QuillNib(QPainter& painter, QPointF nib, double length, double angle, const QuillColours& colours,
              double width = 0.17);

}  // namespace quillet
