#include "dialogs/word_editor.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/presentation.h"
#include "dialogs/edit_boxes.h"
#include "platform/message_box.h"
#include "resources/dialog_templates.h"
#include "words/word_list_editing.h"

namespace quillet {
namespace {

using Controls = WordEditorControls;
using EventKind = DialogEvent::Kind;

constexpr std::size_t kMostTyped = 31;

// The words of a list as its lines. Lines are mostly asked for one after the other: from one word it is a
// step to the next, while a word's number tells little of where it is.
class WordLines {
  public:
    explicit WordLines(const Dict& listed) : words(&listed) {}

    std::string operator()(std::size_t line) {
        const auto number = static_cast<std::int32_t>(line);
        if (number == latest + 1 && latest >= 0) {
            StepWord(*words, 1, word);
        } else if (number != latest) {
            word = GetWord(*words, number);
        }
        latest = number;
        return std::string(word);
    }

  private:
    const Dict* words;
    Word word;
    std::int32_t latest = -1;  // the number of `word`
};

void FillList(Dialog& dialog, const Dict& words) {
    SetControlText(dialog, Controls::kTotal, std::to_string(words.numwords));
    SetLines(dialog, Controls::kList, static_cast<std::size_t>(words.numwords), WordLines(words));
}

void TakeChosenWord(Dialog& dialog, const Dict& words) {
    const int line = Choice(dialog, Controls::kList);
    if (line < 0) return Beep();
    SetControlText(dialog, Controls::kWord, GetWord(words, line));
    SelectText(dialog, Controls::kWord);
}

// The list then shows the word, or where it would stand.
void DoWithWord(Dialog& dialog, EditorButton button, WordEditor& editor) {
    const WordCheck check = CheckEditorWord(ControlText(dialog, Controls::kWord));
    if (check.objection) return Object(dialog, Controls::kWord, *check.objection);
    ShowWaitCursor();
    const Dict& words = editor.Words();
    if (EditorWordCommand(editor.bonus, button, check.word)) {
        editor.changed = true;
        FillList(dialog, words);
    }
    if (words.numwords > 0) SetChoice(dialog, Controls::kList, FindWordIndex(words, check.word));
    FocusAll(dialog, Controls::kWord);
    ShowArrowCursor();
}

struct WordButton {
    int control;
    EditorButton button;
};
constexpr std::array kWordButtons{WordButton{Controls::kAdd, EditorButton::Add},
                                  WordButton{Controls::kFind, EditorButton::Find},
                                  WordButton{Controls::kDelete, EditorButton::Delete}};

}  // namespace

void OpenWordEditor(Dialog& dialog, const WordEditor& editor, std::int32_t first) {
    LimitText(dialog, Controls::kWord, kMostTyped);
    FillList(dialog, editor.Words());
    if (editor.Words().numwords > 0) {
        SetChoice(dialog, Controls::kList, first);
        TakeChosenWord(dialog, editor.Words());
    }
    FocusAll(dialog, Controls::kWord);
}

void HandleWordEditor(Dialog& dialog, const DialogEvent& event, WordEditor& editor) {
    if (event.control == Controls::kList) {
        TakeChosenWord(dialog, editor.Words());
        if (event.kind == EventKind::Chosen) FocusControl(dialog, Controls::kWord);
    } else if (event.kind == EventKind::Pressed) {
        const auto pressed = std::ranges::find(kWordButtons, event.control, &WordButton::control);
        if (pressed != kWordButtons.end()) DoWithWord(dialog, pressed->button, editor);
    }
}

}  // namespace quillet
