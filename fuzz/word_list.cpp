// A word-list file: loaded, walked, searched and changed.
#include <algorithm>

#include "computer/move_generator.h"
#include "game/game_state.h"
#include "store/preferences.h"
#include "support.h"
#include "words/dict.h"
#include "words/graph_check.h"
#include "words/word_index.h"
#include "words/word_list_file.h"

namespace quillet::fuzz {
namespace {

void WalkWords() {
    WordIndex index;
    index.Update(mainDict);
    const std::int32_t count = std::min(mainDict.numwords, 1000);
    for (std::int32_t n = 0; n < count; ++n) {
        const Word word = GetWord(mainDict, n);
        Require(IsWord(mainDict, word), "a word of the list is none");
        Require(FindWordIndex(mainDict, word) == n, "a word is found elsewhere");
        if (word.size() > kMaxWordLength) continue;
        Require(index.Contains(word, KeyOfWord(word)), "a word is not in the index");
    }
    FindWordIndex(mainDict, "NEIGHBOUR");
}

void ChangeWords() {
    for (const std::string_view word : {"A", "QUIZZES", "ZZZZZZZZZZZZZZZ"}) AddWord(mainDict, word);
    Require(!FindBrokenInvariant(mainDict), "adding broke the list");
    while (mainDict.numwords > 0 && mainDict.numDeleted < 20) DeleteWord(mainDict, GetWord(mainDict, 0));
    Require(!FindBrokenInvariant(mainDict), "deleting broke the list");
}

}  // namespace

void SetUp() {
    DetachPreferences();
    MakeFolder("Word Lists");
}

void TryInput(std::string_view input) {
    WriteFile("Word Lists/Fuzzed.qld", input);
    if (!LoadWordList("Fuzzed")) return;
    WalkWords();
    GenerateMoves("RETAINS", std::nullopt, false);
    GenerateMoves("QUIZ[[E", 50, true);
    ChangeWords();
    SaveWordList("Saved");
}

}  // namespace quillet::fuzz
