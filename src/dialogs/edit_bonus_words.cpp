#include "dialogs/edit_bonus_words.h"

#include <string>

#include "data/scenarios.h"
#include "dialogs/edit_boxes.h"
#include "dialogs/word_editor.h"
#include "game/game_state.h"
#include "resources/dialog_templates.h"
#include "words/bonus_words.h"

namespace quillet {
namespace {

using Controls = WordEditorControls;

constexpr std::size_t kMostPointsTyped = 15;

void FillBonusWords(Dialog& dialog, const WordEditor& editor) {
    SetChecked(dialog, Controls::kEnabled, game.settings.bonusWordsEnabled);
    LimitText(dialog, Controls::kPoints, kMostPointsTyped);
    SetControlText(dialog, Controls::kPoints, std::to_string(game.settings.bonusWordValue));
    OpenWordEditor(dialog, editor, 0);
}

// False when the points have to be corrected first.
bool TakeBonusSettings(Dialog& dialog) {
    const auto points = ReadBonusPoints(ControlText(dialog, Controls::kPoints));
    if (!points) {
        FocusAll(dialog, Controls::kPoints);
        return false;
    }
    game.settings.bonusWordValue = *points;
    game.settings.bonusWordsEnabled = IsChecked(dialog, Controls::kEnabled);
    return true;
}

}  // namespace

void EditBonusWords() {
    WordEditor editor{.bonus = true};
    const int result = RunDialog(Controls::kBonusWords, [&](Dialog& dialog, const DialogEvent& event) {
        if (event.kind == DialogEvent::Kind::Opened) FillBonusWords(dialog, editor);
        HandleWordEditor(dialog, event, editor);
        if (event.kind != DialogEvent::Kind::Pressed) return;
        const bool saves = event.control == kOkId && TakeBonusSettings(dialog);
        if (saves || event.control == kCancelId) CloseDialog(dialog, event.control);
    });
    if (result == kOkId) {
        if (editor.changed) TakeBonusWords();
        SaveBonusWords();
    } else if (editor.changed) {
        BuildBonusDict(bonusWords);
    }
}

}  // namespace quillet
