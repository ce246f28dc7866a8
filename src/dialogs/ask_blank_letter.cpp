// Asks which letter a blank stands for, for those who ask through base/presentation.h.
#include "base/presentation.h"
#include "dialogs/edit_boxes.h"
#include "game/game_state.h"
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

// The letter it had at the last DONE or in a hint is proposed.
void Open(Dialog& dialog, LetterCode known) {
    LimitText(dialog, Controls::kLetter, 1);
    if (IsLetter(known)) SetControlText(dialog, Controls::kLetter, std::string(1, known));
}

}  // namespace

std::optional<char> AskBlankLetter(int row, int col) {
    MarkSquareAsked(row, col);
    DialogTemplate dialogTemplate = Controls::kTemplate;
    dialogTemplate.middle = InfoPanelMiddle();
    std::optional<char> letter;
    RunDialog(dialogTemplate, [&](Dialog& dialog, const DialogEvent& event) {
        using EventKind = DialogEvent::Kind;
        if (event.kind == EventKind::Opened) Open(dialog, game.board[row][col].blankLetter);
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
