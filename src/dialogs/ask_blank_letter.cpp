// Asks which letter a blank stands for, for those who ask through base/presentation.h.
#include "base/presentation.h"
#include "dialogs/edit_boxes.h"
#include "game/letters.h"
#include "resources/dialog_templates.h"
#include "view/render.h"

namespace quillet {
namespace {

using Controls = BlankLetterControls;

std::optional<char> TypedLetter(Dialog& dialog) {
    const std::string typed = ControlText(dialog, Controls::kLetter);
    if (typed.empty() || !IsLetter(ToUpper(typed[0]))) return std::nullopt;
    return ToUpper(typed[0]);
}

}  // namespace

std::optional<char> AskBlankLetter(int row, int col) {
    MarkSquareAsked(row, col);
    DialogTemplate dialogTemplate = Controls::kTemplate;
    dialogTemplate.middle = InfoPanelMiddle();
    std::optional<char> letter;
    RunDialog(dialogTemplate, [&](Dialog& dialog, const DialogEvent& event) {
        using EventKind = DialogEvent::Kind;
        if (event.kind == EventKind::Opened) LimitText(dialog, Controls::kLetter, 1);
        // The next key that is typed replaces the letter.
        if (event.kind == EventKind::Opened || event.kind == EventKind::Changed) {
            FocusAll(dialog, Controls::kLetter);
        }
        if (event.kind != EventKind::Pressed) return;
        if (event.control == kOkId) {
            letter = TypedLetter(dialog);
            if (!letter) return Object(dialog, Controls::kLetter, Objection{});
        }
        CloseDialog(dialog, event.control);
    });
    UnmarkSquareAsked(row, col);
    return letter;
}

}  // namespace quillet
