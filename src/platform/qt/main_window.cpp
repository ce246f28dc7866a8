#include "platform/qt/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt/desktop.h"
#include "platform/shared/message_queue.h"

namespace quillet {
namespace {

using Kind = Message::Kind;

constexpr std::array kButtons{Qt::LeftButton, Qt::RightButton};

struct ArrowKey {
    int toolkits;
    Key key;
};
constexpr std::array kKeys{
    ArrowKey{Qt::Key_Left, Key::Left}, ArrowKey{Qt::Key_Right, Key::Right},   ArrowKey{Qt::Key_Up, Key::Up},
    ArrowKey{Qt::Key_Down, Key::Down}, ArrowKey{Qt::Key_Escape, Key::Escape},
};

constexpr char kBackspace = 8;

Message ButtonMessage(Kind kind, bool right, Point at, Qt::KeyboardModifiers modifiers) {
    return {.kind = kind,
            .at = at,
            .rightButton = right,
            .shift = modifiers.testFlag(Qt::ShiftModifier),
            .control = modifiers.testFlag(Qt::ControlModifier)};
}

// The pixels of a part of the canvas, opaque as a window wants them.
QImage OpaquePart(const Image& pixels, const QRect& part) {
    QImage image(part.size(), QImage::Format_RGB32);
    for (int y = 0; y < part.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < part.width(); ++x) {
            line[x] = 0xFF000000 | pixels.At(part.left() + x, part.top() + y);
        }
    }
    return image;
}

}  // namespace

CanvasWidget::CanvasWidget(QWidget* parent, int unitsZoom) : QWidget(parent), zoom(unitsZoom) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void CanvasWidget::SetExtent(Size client) { setFixedSize(client.width * zoom, client.height * zoom); }

void CanvasWidget::paintEvent(QPaintEvent* event) {
    const Canvas& canvas = WindowCanvas();
    // Moved to a screen of another scale: the picture is stretched until the program has drawn it anew.
    if (canvas.Scale() != qRound(devicePixelRatioF()) * zoom) {
        Invalidate(Rect::At({0, 0}, canvas.Extent()));
    }
    const double pixelsPerPoint = static_cast<double>(canvas.Scale()) / zoom;
    const QRect all(0, 0, canvas.Pixels().width, canvas.Pixels().height);
    const QRectF area = event->rect();
    const QRect part = QRectF(area.topLeft() * pixelsPerPoint, area.size() * pixelsPerPoint)
                           .toAlignedRect()
                           .intersected(all);
    if (part.isEmpty()) return;
    const QRectF to(QPointF(part.topLeft()) / pixelsPerPoint, QSizeF(part.size()) / pixelsPerPoint);
    QPainter(this).drawImage(to, OpaquePart(canvas.Pixels(), part));
}

Point CanvasWidget::ToUnits(QPointF position) const {
    return {static_cast<int>(std::floor(position.x() / zoom)),
            static_cast<int>(std::floor(position.y() / zoom))};
}

void CanvasWidget::PostPress(const QMouseEvent& event) {
    pointer = ToUnits(event.position());
    const bool right = event.button() == Qt::RightButton;
    if (!right && event.button() != Qt::LeftButton) return;
    pressed[right ? 1 : 0] = true;
    PostMessage(ButtonMessage(Kind::ButtonDown, right, pointer, event.modifiers()));
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) { PostPress(*event); }
void CanvasWidget::mouseDoubleClickEvent(QMouseEvent* event) { PostPress(*event); }

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
    pointer = ToUnits(event->position());
    const bool right = event->button() == Qt::RightButton;
    bool& isPressed = pressed[right ? 1 : 0];
    if ((!right && event->button() != Qt::LeftButton) || !isPressed) return;
    isPressed = false;
    PostMessage(ButtonMessage(Kind::ButtonUp, right, pointer, event->modifiers()));
}

void CanvasWidget::NoticeLostReleases() {
    for (std::size_t i = 0; i < pressed.size(); ++i) {
        if (!pressed[i] || QGuiApplication::mouseButtons().testFlag(kButtons[i])) continue;
        pressed[i] = false;
        PostMessage(ButtonMessage(Kind::ButtonUp, i == 1, pointer, QGuiApplication::keyboardModifiers()));
    }
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
    const Point at = ToUnits(event->position());
    if (at == pointer) return;
    pointer = at;
    PostMessage(ButtonMessage(Kind::PointerMoved, false, at, event->modifiers()));
}

void CanvasWidget::enterEvent(QEnterEvent* event) { pointer = ToUnits(event->position()); }

void CanvasWidget::leaveEvent(QEvent*) { pointer = ToUnits(mapFromGlobal(QPointF(QCursor::pos()))); }

void CanvasWidget::keyPressEvent(QKeyEvent* event) {
    Message message{.shift = event->modifiers().testFlag(Qt::ShiftModifier),
                    .control = event->modifiers().testFlag(Qt::ControlModifier)};
    const auto* key = std::ranges::find(kKeys, event->key(), &ArrowKey::toolkits);
    if (key != kKeys.end()) {
        message.kind = Kind::KeyDown;
        message.key = key->key;
        return PostMessage(message);
    }
    // An accelerator whose item is disabled comes here too, but is no typed character.
    if (IsAcceleratorKey(event->keyCombination().toCombined())) return;
    message.kind = Kind::Character;
    if (event->key() == Qt::Key_Backspace) {
        message.character = kBackspace;
        return PostMessage(message);
    }
    for (QChar character : event->text()) {
        const char16_t code = character.unicode();
        if (code > 0xFF || !character.isPrint()) continue;
        message.character = static_cast<char>(code);
        PostMessage(message);
    }
}

MainWindow::MainWindow(const QString& title, int zoom)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      column(new QVBoxLayout(this)),
      canvasArea(new CanvasWidget(this, zoom)) {
    setWindowTitle(title);
    canvasArea->setAccessibleName(title);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(canvasArea);
    column->setSizeConstraint(QLayout::SetFixedSize);
    canvasArea->setFocus();
}

void MainWindow::SetMenuBar(QMenuBar* menuBar) {
    column->setMenuBar(menuBar);
    column->activate();
}

void MainWindow::SetClient(Size client, QPoint place) {
    canvasArea->SetExtent(client);
    column->activate();
    const QSize whole = column->totalSizeHint();
    const QPoint canvasCorner(0, whole.height() - canvasArea->height());
    setGeometry(QRect(place - canvasCorner, whole));
}

bool MainWindow::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::WindowActivate:
            PostMessage({.kind = Kind::Activated});
            break;
        case QEvent::WindowDeactivate:
            PostMessage({.kind = Kind::Deactivated});
            break;
        case QEvent::ApplicationPaletteChange:
            PostMessage({.kind = Kind::ColoursChanged});
            break;
        default:
            break;
    }
    return QWidget::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    // The program hears nothing while a menu is open.
    while (QWidget* popUp = QApplication::activePopupWidget()) {
        if (!popUp->close()) break;
    }
    PostMessage({.kind = Kind::CloseRequest});
    event->ignore();
}

KeyBarrier::KeyBarrier(const CanvasWidget& canvasWidget) : canvasArea(canvasWidget) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyBarrier::eventFilter(QObject*, QEvent* event) {
    // What is typed once the button is let go is meant for what comes next, though the program may not have
    // heard of it yet.
    if (!canvasArea.HoldsButton()) return false;
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
            return true;
        case QEvent::ShortcutOverride:
            event->accept();  // or it would be looked up among the shortcuts
            return true;
        default:
            return false;
    }
}

}  // namespace quillet
