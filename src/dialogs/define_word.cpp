#include "dialogs/define_word.h"

#include <string>

#include "dialogs/edit_boxes.h"
#include "resources/dialog_templates.h"
#include "words/definitions.h"

namespace quillet {
namespace {

// A word that was not found stays as it was typed.
void ShowDefinition(Dialog& dialog, const Definition& definition) {
    if (definition.found) {
        SetControlText(dialog, DefineWordControls::kWord, definition.word);
        FocusAll(dialog, DefineWordControls::kWord);
    }
    SetControlText(dialog, DefineWordControls::kText, definition.text);
}

void OpenDefinition(Dialog& dialog, std::string_view word) {
    LimitText(dialog, DefineWordControls::kWord, TypedWord::capacity());
    SetControlText(dialog, DefineWordControls::kWord, word);
    ShowDefinition(dialog, LookUpDefinition(word));
    FocusAll(dialog, DefineWordControls::kWord);
}

}  // namespace

void DefineWord(std::string_view word) {
    if (!DefinitionsFolderExists()) return;
    const TypedWord opened(word);  // what it views may change meanwhile
    RunDialog(DefineWordControls::kTemplate, [&](Dialog& dialog, const DialogEvent& event) {
        if (event.kind == DialogEvent::Kind::Opened) OpenDefinition(dialog, opened);
        if (event.kind != DialogEvent::Kind::Pressed) return;
        if (event.control == kCancelId) return CloseDialog(dialog, kCancelId);
        ShowDefinition(dialog, LookUpDefinition(ControlText(dialog, DefineWordControls::kWord)));
    });
}

}  // namespace quillet
