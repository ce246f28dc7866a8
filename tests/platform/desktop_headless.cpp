#include <algorithm>

#include "platform/desktop.h"
#include "platform/headless/headless_window.h"

namespace quillet::person {
namespace {

using Kind = Message::Kind;

Message ButtonMessage(Kind kind, Point at, Held held) {
    return {.kind = kind, .at = at, .rightButton = held.right, .shift = held.shift, .control = held.control};
}

}  // namespace

void BeginAnew() {
    headless = {};
    ResetHeadlessWindow();
}

void MovePointer(Point at) { PostEvent({.kind = Kind::PointerMoved, .at = at}); }
void PressButton(Point at, Held held) { PostEvent(ButtonMessage(Kind::ButtonDown, at, held)); }
void ReleaseButton(Point at, Held held) { PostEvent(ButtonMessage(Kind::ButtonUp, at, held)); }

void DoubleClick(Point at) {
    for (int i = 0; i < 2; ++i) {
        PressButton(at);
        ReleaseButton(at);
    }
}

void TypeCharacter(char character) { PostEvent({.kind = Kind::Character, .character = character}); }
void PressKey(Key key) { PostEvent({.kind = Kind::KeyDown, .key = key}); }

void PressAccelerator(const Accelerator& accelerator) {
    for (const Accelerator& known : headlessWindow.accelerators) {
        if (known.key == accelerator.key && known.character == accelerator.character) {
            ChooseMenuItem(known.command);
        }
    }
}

void ChooseItem(int command) { ChooseMenuItem(command); }
void CloseWindow() { PostEvent({.kind = Kind::CloseRequest}); }
void LoseFocus() { PostEvent({.kind = Kind::Deactivated}); }
void GetFocus() { PostEvent({.kind = Kind::Activated}); }

std::string MenuText(int command) {
    const HeadlessMenuItem* item = FindMenuItem(command);
    return item != nullptr ? item->text : std::string();
}

bool ItemIsChecked(int command) {
    const HeadlessMenuItem* item = FindMenuItem(command);
    return item != nullptr && item->checked;
}

void WhenOpen(std::function<void()> act) {
    headlessWindow.dialogScripts.push_back([act](Dialog&) { act(); });
}

void PressControl(Dialog& dialog, int control) { quillet::PressControl(dialog, control); }
void TypeInto(Dialog& dialog, int control, std::string_view text) { TypeText(dialog, control, text); }
void ChooseLine(Dialog& dialog, int control, int line) { quillet::ChooseLine(dialog, control, line); }

void DoubleClickLine(Dialog& dialog, int control, int line) {
    quillet::ChooseLine(dialog, control, line);
    dialog.handler(dialog, {.kind = DialogEvent::Kind::Chosen, .control = control});
}

void Step(Dialog& dialog, int control, bool up) { StepArrows(dialog, control, up); }

void LeaveEdit(Dialog& dialog, int control) {
    dialog.focus = 0;
    dialog.handler(dialog, {.kind = DialogEvent::Kind::FocusLeft, .control = control});
}

void PressEscape(Dialog& dialog) { quillet::PressControl(dialog, kCancelId); }
void PressCloseBox(Dialog& dialog) { quillet::PressControl(dialog, kCancelId); }

void PressEnter(Dialog& dialog) {
    const auto button = std::ranges::find_if(dialog.controls, [](const auto& control) {
        return control.second.kind == ControlKind::DefaultButton;
    });
    if (button != dialog.controls.end()) quillet::PressControl(dialog, button->first);
}

bool HasFocus(Dialog& dialog, int control) { return dialog.focus == control; }

void WillPressEnter() {}  // what happens when no answer was given

void WillPressEscape() {
    headless.answers.push_back(false);
    headlessWindow.retryAnswers.push_back(false);
}

}  // namespace quillet::person
