// A window for a test: the headless one as new, and a person's view of its dialogs.
#pragma once

#include <string>
#include <string_view>

#include "platform/headless/headless_window.h"
#include "resources/dialog_templates.h"

namespace quillet {

// A small window as new, while it lives.
struct FreshWindow {
    FreshWindow() {
        ResetHeadlessWindow();
        CreateMainWindow("Quillet", {64, 64}, 1, {});
    }
    ~FreshWindow() { ResetHeadlessWindow(); }
    FreshWindow(const FreshWindow&) = delete;
    FreshWindow& operator=(const FreshWindow&) = delete;
};

// The chosen line of a list or drop-down; "<none>" when none is chosen.
inline std::string LineText(Dialog& dialog, int control) {
    const HeadlessControl& list = dialog.controls.at(control);
    return list.choice < 0 ? "<none>" : list.lineText(static_cast<std::size_t>(list.choice));
}

// An edit's text with its selection in brackets.
inline std::string EditText(Dialog& dialog, int control) {
    const HeadlessControl& edit = dialog.controls.at(control);
    std::string text = edit.text;
    if (edit.selectCount == 0) return text;
    text.insert(edit.selectFrom + edit.selectCount, "]");
    return text.insert(edit.selectFrom, "[");
}

// Types over what an edit holds; presses OK.
inline void Retype(Dialog& dialog, int control, std::string_view text) {
    SelectText(dialog, control);
    TypeText(dialog, control, text);
}
inline void Enter(Dialog& dialog, int control, std::string_view text) {
    Retype(dialog, control, text);
    PressControl(dialog, kOkId);
}

}  // namespace quillet
