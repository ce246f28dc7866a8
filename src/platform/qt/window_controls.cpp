// The toolkit's buttons and lists over the canvas.
#include "platform/window_controls.h"

#include <QComboBox>
#include <QPointer>
#include <QPushButton>
#include <map>
#include <memory>

#include "platform/qt/desktop.h"
#include "platform/shared/message_queue.h"

namespace quillet {
namespace {

constexpr int kTextHeight = 11;  // units: the places of the controls are made for text of that size

std::map<int, QPointer<QWidget>> shown;  // they go with the window, if not before

void PostControlEvent(int id) { PostMessage({.kind = Message::Kind::ControlEvent, .command = id}); }

std::unique_ptr<QWidget> MakeButton(const WindowControl& control, QWidget* parent) {
    auto button = std::make_unique<QPushButton>(ToQString(control.text), parent);
    const int id = control.id;
    QObject::connect(button.get(), &QPushButton::clicked, [id] { PostControlEvent(id); });
    return button;
}

std::unique_ptr<QWidget> MakeList(const WindowControl& control, QWidget* parent) {
    auto list = std::make_unique<QComboBox>(parent);
    for (std::string_view line : control.lines) list->addItem(ToQString(line));
    list->setAccessibleName(ToQString(control.text));
    const int id = control.id;
    // `activated` tells of what the person chose, and of nothing else.
    QObject::connect(list.get(), &QComboBox::activated, [id] { PostControlEvent(id); });
    return list;
}

QComboBox& ListOf(int id) { return static_cast<QComboBox&>(*shown.at(id)); }

}  // namespace

void ShowWindowControls(std::span<const WindowControl> controls) {
    HideWindowControls();
    QWidget* canvas = MainCanvas();
    if (canvas == nullptr) return;
    const int unit = UnitSize();
    for (const WindowControl& control : controls) {
        auto made = (control.kind == ControlKind::DropDown ? MakeList : MakeButton)(control, canvas);
        made->setGeometry(control.rect.left * unit, control.rect.top * unit, control.rect.Width() * unit,
                          control.rect.Height() * unit);
        QFont font = made->font();
        font.setPixelSize(kTextHeight * unit);
        made->setFont(font);
        made->setCursor(Qt::ArrowCursor);
        made->setFocusPolicy(Qt::TabFocus);  // a click leaves the keyboard to the board
        made->setObjectName(QString::number(control.id));
        made->show();
        shown[control.id] = made.release();
    }
}

void HideWindowControls() {
    for (const auto& [id, control] : shown) delete control;
    shown.clear();
    if (QWidget* canvas = MainCanvas()) canvas->setFocus();
}

int WindowControlChoice(int id) { return ListOf(id).currentIndex(); }

void SetWindowControlChoice(int id, int line) { ListOf(id).setCurrentIndex(line); }

}  // namespace quillet
