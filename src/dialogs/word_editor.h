// The part that the editors of word lists and of bonus words share: a list of words, a box for one word, and
// the buttons that find, add or delete it.
#pragma once

#include <cstdint>

#include "platform/dialog.h"
#include "words/dict.h"

namespace quillet {

struct WordEditor {
    bool bonus = false;    // edits bonusDict, otherwise mainDict
    bool changed = false;  // words were added or deleted

    const Dict& Words() const { return bonus ? bonusDict : mainDict; }
};

// Fills the controls; word number `first` is chosen.
void OpenWordEditor(Dialog& dialog, const WordEditor& editor, std::int32_t first);

// Does what the person asked for, if that is the shared part's to do.
void HandleWordEditor(Dialog& dialog, const DialogEvent& event, WordEditor& editor);

}  // namespace quillet
