#include "brush.h"
#include "pictures.h"
namespace quillet {
QImage DrawOpponent(std::string_view, int, int scale) {
    return Draw(215, 150, scale, [](QPainter& p) { BrassFrame(p, QRectF(0, 0, 215, 150)); });
}
}  // namespace quillet
