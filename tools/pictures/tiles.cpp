#include "brush.h"
#include "pictures.h"

namespace quillet {

using namespace palette;

// A slab of old ivory, two pixels thick at the lower right. It fills its square, so its corners are mixed by
// hand with what lies below them.
QImage DrawTile(int pitch, int scale) {
    const int n = pitch - 1;
    QImage tile = Draw(
        n, n, scale,
        [n](QPainter& painter) {
            painter.fillRect(QRectF(0, 0, n - 1, n - 1), kTileDark);
            FillRound(painter, {0, 0, n - 2.0, n - 2.0}, 1.2,
                      Ramp({0, 0, n + 0.0, n + 0.0}, kTileLight, kTile));
            FillRound(
                painter, {1, 1, n - 3.5, n - 3.5}, 2,
                Ramp({0, 0, n + 0.0, n + 0.0}, Mix(kTile, kTileLight, 0.4), Mix(kTile, kTileDark, 0.22)));
            painter.fillRect(QRectF(0, 0, n - 2, 1), kTileLight);
            painter.fillRect(QRectF(0, 0, 1, n - 2), kTileLight);
        },
        kTileEdge);
    const int last = n * scale - 1;
    for (int y = 0; y < scale; ++y) {
        for (int x = 0; x + y < scale; ++x) {
            const double part = x + y == 0 ? 1 : 0.4;
            const auto mixIn = [&](int px, int py, QColor colour, double most) {
                tile.setPixelColor(px, py, Mix(tile.pixelColor(px, py), colour, most * part));
            };
            mixIn(x, y, kTileEdge, 0.45);
            mixIn(last - x, y, kPlainDark, 0.5);
            mixIn(x, last - y, kPlainDark, 0.5);
            mixIn(last - x, last - y, kBlack, 0.25);
        }
    }
    return tile;
}

}  // namespace quillet
