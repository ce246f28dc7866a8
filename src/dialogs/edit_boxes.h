// What dialogs with edit boxes share: refusing what was typed, with the place to correct it selected.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "platform/dialog.h"
#include "words/word_list_editing.h"

namespace quillet {

// The edit gets the focus with all of its text selected.
void FocusAll(Dialog& dialog, int edit);

// Shows the warning, or beeps when it is empty, and lets the person correct those characters.
void Object(Dialog& dialog, int edit, const Objection& objection);

// A dialog that asks for one name; its button hands what was typed to `take`, and the dialog stays open as
// long as that objects. False when the person cancels.
bool AskForName(const DialogTemplate& dialogTemplate,
                const std::function<std::optional<Objection>(std::string_view typed)>& take);

}  // namespace quillet
