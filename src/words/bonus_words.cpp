#include "words/bonus_words.h"

namespace quillet {

void BuildBonusDict(const BonusWordTable& table) {
    MakeBonusStore(bonusDict);
    for (const Word& word : table) {
        if (!IsProperWord(word) || !AddWord(bonusDict, word)) break;
    }
}

}  // namespace quillet
