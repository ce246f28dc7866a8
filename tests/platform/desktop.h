// What a person does at the desktop, in verbs: implemented once for each platform, so that the same tests
// hold both to the contract of src/platform.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/dialog.h"
#include "platform/menu.h"
#include "platform/window.h"

namespace quillet::person {

// No window, no messages, nothing on its way.
void BeginAnew();

struct Held {
    bool right = false;
    bool shift = false;
    bool control = false;
};

void MovePointer(Point at);  // units
void PressButton(Point at, Held held = {});
void ReleaseButton(Point at, Held held = {});
void DoubleClick(Point at);  // both presses and releases
void TypeCharacter(char character);
void PressKey(Key key);
void PressAccelerator(const Accelerator& accelerator);
void ChooseItem(int command);
void CloseWindow();
void LoseFocus();
void GetFocus();

std::string MenuText(int command);  // empty when there is no such item
bool ItemIsChecked(int command);

// Does that as soon as the next dialog or box is open.
void WhenOpen(std::function<void()> act);

// At an open dialog.
void PressControl(Dialog& dialog, int control);
void TypeInto(Dialog& dialog, int control, std::string_view text);
void ChooseLine(Dialog& dialog, int control, int line);
void DoubleClickLine(Dialog& dialog, int control, int line);
void Step(Dialog& dialog, int control, bool up);
void LeaveEdit(Dialog& dialog, int control);  // for another control
void PressEscape(Dialog& dialog);
void PressEnter(Dialog& dialog);
void PressCloseBox(Dialog& dialog);
bool HasFocus(Dialog& dialog, int control);

// At the next box.
void WillPressEnter();
void WillPressEscape();

}  // namespace quillet::person
