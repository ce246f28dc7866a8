#include "platform/window.h"

#include <QApplication>
#include <QDialog>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <memory>

#include "platform/qt/desktop.h"
#include "platform/qt/main_window.h"
#include "platform/shared/message_queue.h"

namespace quillet {
namespace {

struct WindowState {
    std::unique_ptr<MainWindow> window;
    Canvas canvas;
    int zoom = 1;
    std::unique_ptr<KeyBarrier> captured;  // while the pointer is
    bool grabbed = false;
};
WindowState state;

constexpr std::uint32_t kMaxTimeToAppear = 1000;  // milliseconds

QScreen& ScreenOfWindow() {
    QScreen* screen = state.window ? state.window->screen() : nullptr;
    return screen != nullptr ? *screen : *QGuiApplication::primaryScreen();
}

Rect ToRect(const QRect& rect) { return Rect::At({rect.left(), rect.top()}, {rect.width(), rect.height()}); }

bool IsOnScreen() { return state.window && state.window->isVisible() && state.window->windowHandle(); }

int CanvasScale() { return state.zoom * qRound(state.window->devicePixelRatioF()); }

// The window may have been moved to a screen of another scale. Done only where the program takes a message:
// everywhere else it may be in the middle of drawing.
void FollowScale() {
    if (!state.window || state.canvas.Scale() == CanvasScale()) return;
    state.canvas = Canvas(state.canvas.Extent(), CanvasScale());
    Invalidate(Rect::At({0, 0}, state.canvas.Extent()));
}

QRect InDesktopUnits(const Rect& pixels) {
    const double pixelsPerPoint = static_cast<double>(state.canvas.Scale()) / state.zoom;
    return QRectF(pixels.left / pixelsPerPoint, pixels.top / pixelsPerPoint, pixels.Width() / pixelsPerPoint,
                  pixels.Height() / pixelsPerPoint)
        .toAlignedRect();
}

}  // namespace

// --- Waiting ---

void ShowChanges() {
    const Rect changed = state.canvas.TakeChanged();
    if (!changed.IsEmpty() && state.window) state.window->CanvasArea().repaint(InDesktopUnits(changed));
}

void TakeInEvents() {
    QCoreApplication::processEvents();
    if (state.window) state.window->CanvasArea().NoticeLostReleases();
}

void SleepUntil(const QDeadlineTimer& deadline) {
    QTimer alarm;
    if (!deadline.isForever()) {
        alarm.setTimerType(Qt::PreciseTimer);
        alarm.setSingleShot(true);
        alarm.start(static_cast<int>(deadline.remainingTime()));
    }
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (state.window) state.window->CanvasArea().NoticeLostReleases();
}

void Nap(const QDeadlineTimer& deadline) {
    constexpr qint64 kLongest = 10;
    // What the person does becomes messages, which wait. Left out here, it could stay unseen: the toolkit
    // looks at events it has put off only when another one comes.
    QCoreApplication::processEvents();
    QThread::msleep(static_cast<unsigned long>(std::min(deadline.remainingTime(), kLongest)));
}

QDeadlineTimer DeadlineIn(std::uint32_t milliseconds) {
    if (milliseconds == kForever) return QDeadlineTimer(QDeadlineTimer::Forever);
    return QDeadlineTimer(static_cast<qint64>(milliseconds), Qt::PreciseTimer);
}

std::optional<Message> PeekMessage() {
    ShowChanges();
    TakeInEvents();
    while (QApplication::activePopupWidget() != nullptr) SleepUntil(DeadlineIn(kForever));
    DeliverModelessEvents();
    FollowScale();
    return TakeMessage();
}

void WaitForMessage(std::uint32_t maxMilliseconds) {
    const QDeadlineTimer deadline = DeadlineIn(maxMilliseconds);
    ShowChanges();
    TakeInEvents();
    while (!MessageWaits() && !ModelessEventsWait() && !deadline.hasExpired()) SleepUntil(deadline);
}

bool StartTimer(std::uint32_t milliseconds) {
    if (!state.window) return false;
    QTimer::singleShot(static_cast<int>(milliseconds), state.window.get(),
                       [] { PostMessage({.kind = Message::Kind::Timer}); });
    return true;
}

// --- The display and the window ---

Display CurrentDisplay() {
    const QScreen& screen = ScreenOfWindow();
    const QPoint corner = screen.geometry().topLeft();
    Display display{.size = {screen.geometry().width(), screen.geometry().height()},
                    .workArea = ToRect(screen.availableGeometry().translated(-corner)),
                    .bitsPerPixel = screen.depth() > 8 ? 32 : screen.depth()};
    const QMenuBar* menuBar = CurrentMenuBar();
    const QStyle* style = QApplication::style();
    display.menuHeight = menuBar != nullptr ? menuBar->sizeHint().height() : QMenuBar().sizeHint().height();
    if (IsOnScreen()) {
        const QMargins frame = state.window->windowHandle()->frameMargins();
        display.frameWidth = frame.left();
        display.captionHeight = std::max(frame.top() - frame.left(), 0);
    } else {
        display.frameWidth = style->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
        display.captionHeight = style->pixelMetric(QStyle::PM_TitleBarHeight);
    }
    return display;
}

void CreateMainWindow(std::string_view title, Size client, int zoom, Point place) {
    state.zoom = zoom;
    state.window = std::make_unique<MainWindow>(ToQString(title), zoom);
    AttachMenuBar();
    ResizeMainWindow(client, place);
    state.window->show();
    // Until the desktop shows the window, nothing that is drawn would be seen; until it is active, no sound
    // is played.
    const QDeadlineTimer deadline = DeadlineIn(kMaxTimeToAppear);
    const auto isThere = [] { return state.window->windowHandle()->isExposed() && WindowIsActive(); };
    while (!isThere() && !deadline.hasExpired()) SleepUntil(deadline);
    FollowScale();
}

void DestroyMainWindow() {
    ReleasePointer();
    state = {};
    EmptyQueue();
}

bool MainWindowExists() { return state.window != nullptr; }

Canvas& WindowCanvas() { return state.canvas; }

void ResizeMainWindow(Size client, Point place) {
    const QPoint corner = ScreenOfWindow().geometry().topLeft();
    state.window->SetClient(client, corner + QPoint(place.x, place.y));
    state.canvas = Canvas(client, CanvasScale());
    Invalidate(Rect::At({0, 0}, client));
    state.window->CanvasArea().update();
}

Point ClientPlace() {
    if (!state.window) return {};
    const QPoint place =
        state.window->CanvasArea().mapToGlobal(QPoint(0, 0)) - ScreenOfWindow().geometry().topLeft();
    return {place.x(), place.y()};
}

bool WindowIsActive() { return state.window && state.window->isActiveWindow(); }

void SetCursor(Cursor cursor) {
    if (!state.window) return;
    static constexpr std::array kShapes{Qt::ArrowCursor, Qt::WaitCursor, Qt::IBeamCursor};
    const Qt::CursorShape shape = kShapes[static_cast<std::size_t>(cursor)];
    if (state.window->cursor().shape() != shape) state.window->setCursor(shape);
}

void DescribeWindow(std::string_view description) {
    if (!state.window) return;
    const QString text = ToQString(description);
    QWidget& canvasArea = state.window->CanvasArea();
    if (canvasArea.accessibleDescription() != text) canvasArea.setAccessibleDescription(text);
}

void AttachMenuBar() {
    if (state.window && CurrentMenuBar() != nullptr) state.window->SetMenuBar(CurrentMenuBar());
}

// --- Dialogs ---

int UnitSize() { return state.zoom; }

QWidget* DialogParent() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : state.window.get();
}

void MoveToMiddle(QWidget& dialog, std::optional<Point> middle) {
    const QRect screen = ScreenOfWindow().availableGeometry();
    QPoint at = screen.center();
    int above = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
    if (IsOnScreen()) {
        const Size client = state.canvas.Extent();
        const Point point = middle.value_or(Point{client.width / 2, client.height / 2});
        at = state.window->CanvasArea().mapToGlobal(QPoint(point.x, point.y) * state.zoom);
        above = state.window->windowHandle()->frameMargins().top();
    }
    // The dialog's own frame is not known before it shows.
    const QRect room = screen.adjusted(0, above, 0, 0);
    const QSize size = dialog.size();
    const auto within = [](int from, int least, int most) { return std::max(std::min(from, most), least); };
    dialog.setGeometry(within(at.x() - size.width() / 2, room.left(), room.right() + 1 - size.width()),
                       within(at.y() - size.height() / 2, room.top(), room.bottom() + 1 - size.height()),
                       size.width(), size.height());
}

int RunModal(QDialog& dialog) {
    constexpr std::uint32_t kMaxTimeToReturn = 250;
    QWidget* behind = dialog.parentWidget();
    const bool wasActive = behind != nullptr && behind->isActiveWindow();
    ShowChanges();
    const int result = dialog.exec();
    // What comes next may ask who has the focus. The person may have gone to another program meanwhile.
    if (!wasActive || QGuiApplication::applicationState() != Qt::ApplicationActive) return result;
    behind->activateWindow();
    const QDeadlineTimer deadline = DeadlineIn(kMaxTimeToReturn);
    while (!behind->isActiveWindow() && !deadline.hasExpired()) SleepUntil(deadline);
    return result;
}

// --- The pointer ---

QWidget* MainCanvas() { return state.window ? &state.window->CanvasArea() : nullptr; }

Point PointerPosition() { return state.window ? state.window->CanvasArea().LastPointer() : Point{-1, -1}; }

void CapturePointer() {
    if (!state.window) return;
    BeginFollowingPointer();
    if (!state.captured) state.captured = std::make_unique<KeyBarrier>(state.window->CanvasArea());
    // With a button held the desktop sends us the pointer anyway; and most let only menus take it otherwise.
    const bool mayGrab = QGuiApplication::platformName() == QLatin1String("xcb");
    if (state.grabbed || !mayGrab || QGuiApplication::mouseButtons() != Qt::NoButton) return;
    state.window->CanvasArea().grabMouse();
    state.grabbed = true;
}

void ReleasePointer() {
    if (state.grabbed) state.window->CanvasArea().releaseMouse();
    state.grabbed = false;
    state.captured.reset();
}

PointerState WaitForPointer(std::uint32_t maxMilliseconds) {
    const QDeadlineTimer deadline = DeadlineIn(maxMilliseconds);
    ShowChanges();
    TakeInEvents();
    for (;;) {
        if (const auto pointer = TakePointerEvent()) return *pointer;
        if (deadline.hasExpired()) return CurrentPointerState();
        SleepUntil(deadline);
    }
}

}  // namespace quillet
