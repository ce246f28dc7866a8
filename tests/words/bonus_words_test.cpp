#include "words/bonus_words.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(BonusWords, DictHoldsTheTableUpToTheFirstEntryThatIsNoWord) {
    for (const char* end : {"", "quiz", "TWO WORDS"}) {
        BuildBonusDict({"STALE"});
        BuildBonusDict({"ABCDEFGHIJKLMNOP", "QUIZ", "AXE", end, "AFTER"});
        EXPECT_EQ(bonusDict.numwords, 3) << end;
        EXPECT_TRUE(IsBonusWord("ABCDEFGHIJKLMNOP") && IsBonusWord("AXE") && !IsBonusWord("STALE"));
    }
}

}  // namespace
}  // namespace quillet
