#include "words/bonus_words.h"

#include "support/temp_folder.h"

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

using BonusWordsFile = TempFolder;

TEST_F(BonusWordsFile, IsReadLineByLine) {
    std::string many;
    for (int i = 0; i < 120; ++i) many += "A\r\n";
    const std::pair<std::string, Strings> cases[] = {
        {"QUIZ\r\nAXE\r\n", {"QUIZ", "AXE"}},
        {"ABCDEFGHIJKLMNOPQRST\r\nquiz\r\nAXE", {"ABCDEFGHIJKLMNOP", "quiz", "AXE"}},
        {std::string("QUIZ\0X\r\nAXE\r\n", 13), {"QUIZ", "AXE"}},
        {many, Strings(100, "A")},
        {"", {}},
    };
    for (const auto& [contents, words] : cases) {
        WriteFile("Scenarios/Mine/602.str", contents);
        LoadBonusWords("Scenarios\\Mine");
        for (std::size_t i = 0; i < bonusWords.size(); ++i) {
            EXPECT_EQ(bonusWords[i], i < words.size() ? words[i] : "") << contents;
        }
    }
    LoadBonusWords("Scenarios\\Gone");
    EXPECT_TRUE(bonusWords[0].empty() && bonusDict.numwords == 0);
}

TEST_F(BonusWordsFile, HoldsEachWordWithALineEnd) {
    MakeFolder("Scenarios/Mine");
    bonusWords = {"AXE", "QUIZ", "", "STALE"};
    EXPECT_TRUE(WriteBonusWords("Scenarios\\Mine") && !WriteBonusWords("Scenarios\\Gone"));
    EXPECT_EQ(ReadFile("Scenarios/Mine/602.str"), "AXE\r\nQUIZ\r\n");
    EXPECT_THAT(TakeMessages(), ElementsAre("Couldn't create bonus words file: Scenarios\\Gone\\602.str"));
}

}  // namespace
}  // namespace quillet
