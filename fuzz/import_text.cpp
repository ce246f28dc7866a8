// A text file whose words are added to a list.
#include "store/preferences.h"
#include "support.h"
#include "words/dict.h"
#include "words/graph_check.h"
#include "words/word_list_editing.h"

namespace quillet::fuzz {

void SetUp() { DetachPreferences(); }

void TryInput(std::string_view input) {
    UseSmallWordList();
    const std::int32_t before = mainDict.numwords;
    WriteFile("words.txt", input);
    AddFromTextFile("words.txt");
    Require(!FindBrokenInvariant(mainDict), "adding words broke the list");
    Require(mainDict.numwords == before + mainDict.numAdded, "words were lost or counted twice");
    DumpToTextFile("dumped.txt");
    const std::int32_t after = mainDict.numwords;
    AddFromTextFile("dumped.txt");
    Require(mainDict.numwords == after, "words that were dumped are new");
}

}  // namespace quillet::fuzz
