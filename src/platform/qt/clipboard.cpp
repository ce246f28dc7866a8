#include "platform/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPainter>

#include "platform/qt/desktop.h"

namespace quillet {
namespace {

// Asking another program what it offers takes time, and it may not answer: asked once for each change.
std::optional<bool> holdsPicture;

QClipboard& Clipboard() {
    QClipboard* clipboard = QGuiApplication::clipboard();
    static QClipboard* watched = nullptr;
    if (watched != clipboard) {
        watched = clipboard;
        holdsPicture.reset();
        QObject::connect(clipboard, &QClipboard::dataChanged, clipboard, [] { holdsPicture.reset(); });
    }
    return *clipboard;
}

}  // namespace

QImage ToQImage(const Image& image) {
    QImage result(image.width, image.height, QImage::Format_RGB32);
    for (int y = 0; y < image.height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < image.width; ++x) line[x] = 0xFF000000 | image.At(x, y);
    }
    return result;
}

bool ClipboardHoldsPicture() {
    const QClipboard& clipboard = Clipboard();
    if (!holdsPicture) {
        const QMimeData* data = clipboard.mimeData();
        holdsPicture = data != nullptr && data->hasImage();
    }
    return *holdsPicture;
}

std::optional<Image> ClipboardPicture() {
    const QImage picture = Clipboard().image();
    if (picture.isNull()) return std::nullopt;
    // What is transparent shows the paper below.
    QImage onPaper(picture.size(), QImage::Format_RGB32);
    if (onPaper.isNull()) return std::nullopt;
    onPaper.fill(Qt::white);
    QPainter(&onPaper).drawImage(onPaper.rect(), picture);
    Image image(onPaper.width(), onPaper.height());
    for (int y = 0; y < image.height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(onPaper.constScanLine(y));
        for (int x = 0; x < image.width; ++x) image.At(x, y) = line[x] & 0xFFFFFF;
    }
    return image;
}

void PutPictureOnClipboard(const Image& image) { Clipboard().setImage(ToQImage(image)); }

}  // namespace quillet
