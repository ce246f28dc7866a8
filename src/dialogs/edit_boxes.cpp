#include "dialogs/edit_boxes.h"

#include "base/messages.h"
#include "platform/message_box.h"
#include "resources/dialog_templates.h"

namespace quillet {

using EventKind = DialogEvent::Kind;

void FocusAll(Dialog& dialog, int edit) {
    FocusControl(dialog, edit);
    SelectText(dialog, edit);
}

void Object(Dialog& dialog, int edit, const Objection& objection) {
    if (objection.warning.empty()) {
        Beep();
    } else {
        Warning(objection.warning);
    }
    FocusControl(dialog, edit);
    SelectText(dialog, edit, objection.selectFrom, objection.selectCount);
}

bool AskForName(const DialogTemplate& dialogTemplate,
                const std::function<std::optional<Objection>(std::string_view typed)>& take) {
    const int result = RunDialog(dialogTemplate, [&](Dialog& dialog, const DialogEvent& event) {
        if (event.kind == EventKind::Opened) FocusControl(dialog, NameControls::kName);
        if (event.kind != EventKind::Pressed) return;
        if (event.control == kOkId) {
            if (const auto objection = take(ControlText(dialog, NameControls::kName))) {
                return Object(dialog, NameControls::kName, *objection);
            }
        }
        CloseDialog(dialog, event.control);
    });
    return result == kOkId;
}

}  // namespace quillet
