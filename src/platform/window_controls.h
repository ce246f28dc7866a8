// The desktop's own buttons and lists in the main window's client area, over what is drawn there. What the
// person does with one makes a ControlEvent message with its id.
#pragma once

#include <span>
#include <string_view>

#include "platform/dialog.h"
#include "platform/geometry.h"

namespace quillet {

struct WindowControl {
    int id = 0;
    ControlKind kind = ControlKind::Button;  // or DropDown
    Rect rect;                               // units of the client area; a list opens below it
    std::string_view text;                   // of a button; of a list its name for assistive technology
    std::span<const std::string_view> lines{};
};

// Shows these, in the place of any shown before.
void ShowWindowControls(std::span<const WindowControl> controls);
void HideWindowControls();

// The chosen line of a list, 0-based. Setting makes no message.
int WindowControlChoice(int id);
void SetWindowControlChoice(int id, int line);

}  // namespace quillet
