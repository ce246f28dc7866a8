#include "words/dict.h"

#include <random>
#include <set>

#include "base/messages.h"
#include "support/temp_folder.h"
#include "words/graph_check.h"

namespace quillet {
namespace {

Dict DictOf(const Strings& words) {
    Dict dict;
    MakeStore(dict, 0);
    for (const std::string& word : words) AddWord(dict, word);
    return dict;
}

Word Stepped(const Dict& dict, int direction, std::string_view from) {
    Word word(from);
    StepWord(dict, direction, word);
    return word;
}

using DictTest = TempFolder;

struct RandomWords {
    const char* name;
    unsigned letters;    // size of the alphabet
    unsigned maxLength;  // 1..16
    int changes;
};
class DictAgainstSet : public testing::TestWithParam<RandomWords> {};

// Compares everything a dict can be asked with a plain set of words.
void ExpectSameWords(const Dict& dict, const std::set<std::string>& words) {
    std::set<std::string> prefixes;
    std::string previous;
    for (std::int32_t n = 0; const std::string& word : words) {
        ASSERT_EQ(GetWord(dict, n), word);
        ASSERT_EQ(FindWordIndex(dict, word), n++) << word;
        if (!previous.empty()) {
            ASSERT_EQ(Stepped(dict, 1, previous), word);
            ASSERT_EQ(Stepped(dict, -1, word), previous);
        }
        previous = word;
        for (std::size_t length = 1; length <= word.size(); ++length) prefixes.insert(word.substr(0, length));
    }
    ASSERT_EQ(static_cast<std::size_t>(dict.numedges), prefixes.size());
}

TEST_P(DictAgainstSet, HoldsTheSameWordsAfterEveryChange) {
    std::mt19937 random(20240501);
    Dict dict;
    std::set<std::string> words;
    std::int32_t changesSoFar = 0;
    for (int change = 0; change < GetParam().changes; ++change) {
        std::string word(1 + random() % GetParam().maxLength, ' ');
        for (char& letter : word) letter = static_cast<char>('A' + random() % GetParam().letters);
        // The set fills up and empties again, several times over.
        const bool adding = (change / 500 % 2 == 0) == (random() % 10 < 8);
        if (!adding && !words.empty() && random() % 4 != 0) {
            word = *std::next(words.begin(), static_cast<long>(random() % words.size()));
        }
        const auto revision = dict.revision;
        const bool changes = adding ? words.insert(word).second : words.erase(word) > 0;
        adding ? static_cast<void>(AddWord(dict, word)) : DeleteWord(dict, word);
        changesSoFar += changes;
        ASSERT_EQ(dict.revision != revision, changes);
        ASSERT_EQ(dict.numAdded + dict.numDeleted, changesSoFar);
        ASSERT_EQ(FindBrokenInvariant(dict), std::nullopt) << "after " << word;
        ASSERT_EQ(dict.numwords, static_cast<std::int32_t>(words.size()));
        ASSERT_EQ(IsWord(dict, word), adding);
        if (change % 100 == 0 || words.empty()) ExpectSameWords(dict, words);
    }
}

INSTANTIATE_TEST_SUITE_P(All, DictAgainstSet,
                         testing::Values(RandomWords{"Dense", 3, 5, 6000}, RandomWords{"Long", 2, 16, 3000},
                                         RandomWords{"Wide", 26, 3, 3000}),
                         [](const auto& which) { return which.param.name; });

TEST_F(DictTest, UnknownWordsHaveANeighboursNumber) {
    const Dict dict = DictOf({"BAT", "BATHE", "CAT", "CATS", "CATTLE", "DOG"});
    const std::pair<const char*, int> cases[] = {
        {"A", 0},     {"ZZZZ", 5},      // before all and after all
        {"BAR", 0},   {"CATF", 3},      // a greater letter: the first word under it
        {"CATZ", 4},  {"BZ", 1},        // past the list: the last word under its last letter
        {"BATH", 1},  {"C", 2},         // the beginning of words: the first of them
        {"CATSY", 3}, {"DOGGEREL", 5},  // beyond a word: that word
    };
    for (const auto& [word, number] : cases) EXPECT_EQ(FindWordIndex(dict, word), number) << word;
    EXPECT_EQ(FindWordIndex(Dict{}, "A"), 0);
}

TEST_F(DictTest, SteppingNeedsAWordAndANeighbour) {
    const Dict dict = DictOf({"CATS"});
    EXPECT_EQ(Stepped(dict, 1, "CAT"), "CAT");
    EXPECT_EQ(headless.beeps, 1);
    EXPECT_THROW(GetWord(dict, 1), ProgramEnd);
    EXPECT_THROW(Stepped(dict, 1, "CATS"), ProgramEnd);
    EXPECT_THROW(Stepped(dict, -1, "CATS"), ProgramEnd);
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Bug: n >= numwords", "Bug: no previous edge", "Bug: no previous edge"));
}

TEST_F(DictTest, WordsThatDoNotFitLeaveTheListAsItWas) {
    const auto full = [](std::int32_t numedges, std::size_t edges, std::int32_t spareEdges) {
        Dict dict = DictOf({"A"});
        dict.numedges = numedges;
        dict.edges.resize(edges);
        dict.spareEdges = spareEdges;
        return dict;
    };
    Dict dict = full(1, 3, 2);
    dict.fixedStore = true;
    EXPECT_FALSE(AddWord(dict, "BEE"));
    EXPECT_EQ(FindBrokenInvariant(dict), std::nullopt);
    EXPECT_TRUE(dict.numedges == 1 && AddWord(dict, "BE") && !AddWord(dict, "AT"));
    dict.fixedStore = false;
    EXPECT_TRUE(AddWord(dict, "AT"));
    EXPECT_EQ(dict.spareEdges, 19999);
    EXPECT_EQ(FindBrokenInvariant(dict), std::nullopt);

    dict = full(kMaxEdges - 1, kMaxEdges - 1, 0);
    EXPECT_FALSE(AddWord(dict, "BE"));
    EXPECT_TRUE(dict.numwords == 1 && dict.edges[0].lastEdge());
    EXPECT_TRUE(AddWord(dict, "B") && !AddWord(dict, "C"));
    const auto* const noMemory = "Not enough memory to add new word.";
    EXPECT_THAT(TakeMessages(), ElementsAre(noMemory, noMemory, "Too many words!", "Too many words!"));
}

}  // namespace
}  // namespace quillet
