#include "words/word_list_builder.h"
#include "support/testing.h"

#include <random>

#include "words/graph_check.h"

namespace quillet {
namespace {

TEST(WordListBuilder, TakesOnlyCleanLowerCaseWords) {
    EXPECT_THAT(WordsOfText("the Cat sat, on mat"), ElementsAre("THE", "ON", "MAT"));
    EXPECT_THAT(WordsOfText("a\tb\rc\nd\r\ne x2 2x x-x xX x\xE9 \"x\" a "),
                ElementsAre("A", "B", "C", "D", "E", "A"));
    EXPECT_THAT(WordsOfText("abcdefghijklmno abcdefghijklmnop"), ElementsAre("ABCDEFGHIJKLMNO"));
}

TEST(WordListBuilder, HoldsWhatAddingWordByWordHolds) {
    std::mt19937 random(3);
    for (const std::size_t maxLength : {0U, 3U, 16U}) {
        std::vector<Word> words(maxLength == 0 ? 0 : 3000);
        Dict added;
        for (Word& word : words) {
            for (auto letters = 1 + random() % maxLength; letters > 0; --letters) {
                word.Append(static_cast<char>('A' + random() % (maxLength == 3 ? 26 : 2)));
            }
            AddWord(added, word);
        }
        Dict built;
        ASSERT_TRUE(BuildDict(built, words));
        EXPECT_EQ(FindBrokenInvariant(built), std::nullopt);
        EXPECT_EQ(built.numedges, added.numedges);
        EXPECT_EQ(TextOfWords(built), TextOfWords(added));
        EXPECT_FALSE(DictChanged(built));
    }
}

}  // namespace
}  // namespace quillet
