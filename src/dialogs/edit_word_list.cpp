#include "dialogs/edit_word_list.h"

#include <algorithm>
#include <string>

#include "dialogs/define_word.h"
#include "dialogs/edit_boxes.h"
#include "dialogs/word_editor.h"
#include "game/validation.h"
#include "resources/dialog_templates.h"
#include "words/word_list_editing.h"

namespace quillet {
namespace {

using Controls = WordEditorControls;

constexpr std::int32_t kLinesInView = 12;

// The latest move's word, when the list knows it, with what follows it in view.
std::int32_t FirstWordShown() {
    if (formedWords.count == 0 || !IsWord(mainDict, formedWords.words[0])) return 0;
    const std::int32_t latest = std::max(mainDict.numwords - kLinesInView, 0);
    return std::min(FindWordIndex(mainDict, formedWords.words[0]), latest);
}

void DefineTypedWord(Dialog& dialog) {
    DefineWord(ControlText(dialog, Controls::kWord).substr(0, kMaxWordLength));
    FocusAll(dialog, Controls::kWord);
}

}  // namespace

void EditWordList() {
    const std::string title = "Edit \"" + std::string(wordList.current) + "\"";
    DialogTemplate dialogTemplate = Controls::kWordList;
    dialogTemplate.title = title;
    WordEditor editor;
    const int result = RunDialog(dialogTemplate, [&](Dialog& dialog, const DialogEvent& event) {
        if (event.kind == DialogEvent::Kind::Opened) OpenWordEditor(dialog, editor, FirstWordShown());
        HandleWordEditor(dialog, event, editor);
        if (event.kind != DialogEvent::Kind::Pressed) return;
        if (event.control == Controls::kDefine) DefineTypedWord(dialog);
        if (event.control == kOkId || event.control == kCancelId) CloseDialog(dialog, event.control);
    });
    if (result == kCancelId && editor.changed) RevertWordList();
}

}  // namespace quillet
