#include "dialogs/new_word_list.h"

#include "dialogs/edit_boxes.h"
#include "resources/dialog_templates.h"
#include "words/word_list_editing.h"

namespace quillet {
namespace {

// Asks for the name of a list that there is not; `make` then makes it.
bool AskForListName(const DialogTemplate& dialogTemplate,
                    std::optional<Objection> (*make)(std::string_view name)) {
    if (!WordListsFolderExists()) return false;
    return AskForName(dialogTemplate, [&](std::string_view typed) {
        const ListNameCheck check = CheckListName(typed);
        return check.objection ? check.objection : make(check.name);
    });
}

}  // namespace

bool NewWordListDialog() {
    OfferToSaveWordList();
    return AskForListName(NameControls::kNewWordList, CreateWordList);
}

void SaveWordListAsDialog() { AskForListName(NameControls::kSaveWordListAs, SaveWordListAs); }

}  // namespace quillet
