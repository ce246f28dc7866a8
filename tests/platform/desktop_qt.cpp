#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <map>
#include <memory>

#include "platform/desktop.h"
#include "platform/qt/controls.h"
#include "platform/qt/main_window.h"
#include "platform/qt/open_dialog.h"
#include "platform/qt/qt_platform.h"
#include "platform/shared/message_queue.h"

namespace quillet::person {
namespace {

const std::map<Key, Qt::Key> kKeys{{Key::Left, Qt::Key_Left},
                                   {Key::Right, Qt::Key_Right},
                                   {Key::Up, Qt::Key_Up},
                                   {Key::Down, Qt::Key_Down},
                                   {Key::Escape, Qt::Key_Escape}};

std::unique_ptr<QWidget> otherProgram;
Qt::MouseButtons buttons;  // held

MainWindow& Window() { return static_cast<MainWindow&>(*DialogParent()); }

QPoint InWindow(Point at) {
    const QPoint unit = QPoint(at.x, at.y) * UnitSize();
    return Window().CanvasArea().mapTo(&Window(), unit);
}

Qt::KeyboardModifiers ModifiersOf(Held held) {
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, held.shift);
    modifiers.setFlag(Qt::ControlModifier, held.control);
    return modifiers;
}

Qt::MouseButton ButtonOf(Held held) { return held.right ? Qt::RightButton : Qt::LeftButton; }

// As the desktop does it: the toolkit finds out by itself what is a double click.
void SendMouse(QEvent::Type type, Point at, Qt::MouseButton button, Held held) {
    static int time = 0;
    if (type == QEvent::MouseMove) time += QApplication::doubleClickInterval() + 1;
    ++time;
    buttons.setFlag(button, type == QEvent::MouseButtonPress);
    QWindow* window = Window().windowHandle();
    const QPoint place = InWindow(at);
    qt_handleMouseEvent(window, place, window->mapToGlobal(place), buttons, button, type, ModifiersOf(held),
                        time);
}

QAction* ActionOf(int command) {
    if (CurrentMenuBar() == nullptr) return nullptr;
    for (QAction* action : CurrentMenuBar()->findChildren<QAction*>()) {
        if (action->data() == command) return action;
    }
    return nullptr;
}

void ClickOn(QWidget& widget, QPoint at, bool twice = false) {
    QWidget* window = widget.window();
    const QPoint inWindow = widget.mapTo(window, at);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, inWindow);
    if (twice) QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, inWindow);
    QCoreApplication::processEvents();
}

void PressKeyIn(QWidget& window, Qt::Key key) {
    QTest::keyClick(window.windowHandle(), key);
    QCoreApplication::processEvents();
}

QWidget& WidgetOf(Dialog& dialog, int control) { return *dialog.controls.at(control).widget; }

void ClickLine(QWidget& widget, int line, bool twice) {
    auto& list = static_cast<QListView&>(widget);
    const QModelIndex index = list.model()->index(line, 0);
    list.scrollTo(index);
    ClickOn(*list.viewport(), list.visualRect(index).center(), twice);
}

}  // namespace

void BeginAnew() {
    if (buttons.testFlag(Qt::LeftButton)) ReleaseButton({0, 0});
    if (buttons.testFlag(Qt::RightButton)) ReleaseButton({0, 0}, {.right = true});
    otherProgram.reset();
    DestroyMainWindow();
    BuildMenuBar({}, {});
    QCoreApplication::processEvents();
    EmptyQueue();
}

void MovePointer(Point at) { SendMouse(QEvent::MouseMove, at, Qt::NoButton, {}); }
void PressButton(Point at, Held held) { SendMouse(QEvent::MouseButtonPress, at, ButtonOf(held), held); }
void ReleaseButton(Point at, Held held) { SendMouse(QEvent::MouseButtonRelease, at, ButtonOf(held), held); }

void DoubleClick(Point at) {
    for (int i = 0; i < 2; ++i) {
        PressButton(at);
        ReleaseButton(at);
    }
}

void TypeCharacter(char character) {
    const QString text = ToQString({&character, 1});
    const auto key = character == 8 ? Qt::Key_Backspace : Qt::Key(text.toUpper().at(0).unicode());
    QTest::sendKeyEvent(QTest::Click, Window().windowHandle(), key, text, Qt::NoModifier);
}

void PressKey(Key key) { QTest::keyClick(Window().windowHandle(), kKeys.at(key)); }

void PressAccelerator(const Accelerator& accelerator) {
    QWindow* window = Window().windowHandle();
    switch (accelerator.key) {
        case AcceleratorKey::ControlAnd:
            return QTest::keyClick(window, Qt::Key(accelerator.character), Qt::ControlModifier);
        case AcceleratorKey::Return:
            return QTest::keyClick(window, Qt::Key_Return);
        case AcceleratorKey::KeypadPeriod:
            return QTest::sendKeyEvent(QTest::Click, window, Qt::Key_Period, QStringLiteral("."),
                                       Qt::KeypadModifier);
        case AcceleratorKey::F1:
            return QTest::keyClick(window, Qt::Key_F1);
    }
}

void ChooseItem(int command) {
    if (QAction* action = ActionOf(command)) action->trigger();
}

void CloseWindow() { Window().windowHandle()->close(); }

void LoseFocus() {
    otherProgram = std::make_unique<QWidget>();
    otherProgram->show();
    otherProgram->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(otherProgram.get()));
}

void GetFocus() {
    Window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
}

std::string MenuText(int command) {
    const QAction* action = ActionOf(command);
    return action != nullptr ? FromQString(action->text()) : std::string();
}

bool ItemIsChecked(int command) {
    const QAction* action = ActionOf(command);
    return action != nullptr && action->isChecked();
}

void WhenOpen(std::function<void()> act) {
    const auto isOpen = [] {
        const QWidget* box = QApplication::activeModalWidget();
        return box != nullptr && box->isActiveWindow() && box->windowHandle()->isExposed();
    };
    QTimer::singleShot(1, qApp, [act, isOpen] { isOpen() ? act() : WhenOpen(act); });
}

void PressControl(Dialog& dialog, int control) {
    QWidget& widget = WidgetOf(dialog, control);
    // The text of a check or radio button may be shorter than its place.
    ClickOn(widget, QPoint(std::min(10, widget.width() / 2), widget.height() / 2));
}

void TypeInto(Dialog& dialog, int control, std::string_view text) {
    QWidget& widget = WidgetOf(dialog, control);
    widget.setFocus();
    for (const char character : text) {
        const QString typed = ToQString({&character, 1});
        QTest::sendKeyEvent(QTest::Click, widget.window()->windowHandle(),
                            Qt::Key(typed.toUpper().at(0).unicode()), typed, Qt::NoModifier);
    }
    QCoreApplication::processEvents();
}

void ChooseLine(Dialog& dialog, int control, int line) {
    QWidget& widget = WidgetOf(dialog, control);
    if (auto* dropDown = qobject_cast<QComboBox*>(&widget)) {
        dropDown->setFocus();
        while (dropDown->currentIndex() < line) PressKeyIn(*widget.window(), Qt::Key_Down);
        while (dropDown->currentIndex() > line) PressKeyIn(*widget.window(), Qt::Key_Up);
        return;
    }
    ClickLine(widget, line, false);
}

void DoubleClickLine(Dialog& dialog, int control, int line) {
    ClickLine(WidgetOf(dialog, control), line, true);
}

void Step(Dialog& dialog, int control, bool up) {
    WidgetOf(dialog, control).setFocus();
    PressKeyIn(*dialog.window, up ? Qt::Key_Up : Qt::Key_Down);
}

void LeaveEdit(Dialog& dialog, int control) {
    WidgetOf(dialog, control).setFocus();
    PressKeyIn(*dialog.window, Qt::Key_Tab);
}

void PressEscape(Dialog& dialog) { PressKeyIn(*dialog.window, Qt::Key_Escape); }
void PressEnter(Dialog& dialog) { PressKeyIn(*dialog.window, Qt::Key_Return); }

void PressCloseBox(Dialog& dialog) {
    dialog.window->windowHandle()->close();
    QCoreApplication::processEvents();
}

bool HasFocus(Dialog& dialog, int control) { return WidgetOf(dialog, control).hasFocus(); }

void WillPressEnter() {
    WhenOpen([] { PressKeyIn(*QApplication::activeModalWidget(), Qt::Key_Return); });
}

void WillPressEscape() {
    WhenOpen([] { PressKeyIn(*QApplication::activeModalWidget(), Qt::Key_Escape); });
}

}  // namespace quillet::person

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!quillet::StartPlatform(argumentCount, arguments)) return 1;
    const int result = RUN_ALL_TESTS();
    quillet::EndPlatform();
    return result;
}
