// A scenario's bonus words: loaded, written and loaded again.
#include "words/bonus_words.h"

#include "store/preferences.h"
#include "support.h"
#include "words/graph_check.h"

namespace quillet::fuzz {

void SetUp() {
    DetachPreferences();
    MakeFolder("Scenarios/Fuzzed");
}

void TryInput(std::string_view input) {
    WriteFile("Scenarios/Fuzzed/602.str", input);
    LoadBonusWords("Scenarios\\Fuzzed");
    Require(!FindBrokenInvariant(bonusDict), "the bonus words make a broken graph");
    const std::int32_t count = bonusDict.numwords;
    Require(WriteBonusWords("Scenarios\\Fuzzed"), "the bonus words cannot be written");
    LoadBonusWords("Scenarios\\Fuzzed");
    // There may be more: a NUL, which ends the words there, is not written.
    Require(bonusDict.numwords >= count, "bonus words that were written are lost");
}

}  // namespace quillet::fuzz
