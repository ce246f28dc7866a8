#include "words/graph_check.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

// 0 A, child 3; 1 B, child 4, a word; 2 C, a word. 3 T, a word. 4 E, a word; 5 Y, a word.
Dict SoundDict() {
    Dict dict;
    for (const char* word : {"AT", "B", "BE", "BY", "C"}) AddWord(dict, word);
    return dict;
}

TEST(GraphCheck, NamesEachBrokenInvariant) {
    ASSERT_EQ(FindBrokenInvariant(SoundDict()), std::nullopt);
    ASSERT_EQ(FindBrokenInvariant(Dict{}), std::nullopt);
    using Damage = void (*)(Dict&);
    const std::pair<const char*, Damage> damages[] = {
        {"numedges out of range", [](Dict& dict) { dict.numedges = -1; }},
        {"numedges out of range", [](Dict& dict) { dict.numedges = kMaxEdges + 1; }},
        {"triesize is not 4 * numedges", [](Dict& dict) { dict.triesize = 23; }},
        {"the store does not hold numedges and spareEdges", [](Dict& dict) { dict.edges.resize(5); }},
        {"edge 3: letter not A to Z", [](Dict& dict) { dict.edges[3].bits = 0x74C00000; }},
        {"edge 2: letters not in ascending order", [](Dict& dict) { dict.edges[2].bits = 0x42C00000; }},
        {"edge 5: last list not closed", [](Dict& dict) { dict.edges[5].SetLastEdge(false); }},
        {"edge 3: child not above its parent", [](Dict& dict) { dict.edges[3].SetChild(3); }},
        {"edge 2: child outside the array", [](Dict& dict) { dict.edges[2].SetChild(6); }},
        {"edge 0: child not at the start of a list", [](Dict& dict) { dict.edges[0].SetChild(5); }},
        {"edge 1: child list has two parents", [](Dict& dict) { dict.edges[1].SetChild(3); }},
        {"edge 4: list without a parent", [](Dict& dict) { dict.edges[1].SetChild(0); }},
        {"edge 2: neither word end nor children", [](Dict& dict) { dict.edges[2].SetWordEnd(false); }},
        {"sums differ from the words in the graph", [](Dict& dict) { ++dict.sum[25]; }},
        {"numwords differs from the words in the graph", [](Dict& dict) { ++dict.numwords; }},
    };
    for (const auto& [fault, damage] : damages) {
        Dict dict = SoundDict();
        damage(dict);
        EXPECT_EQ(FindBrokenInvariant(dict), fault);
    }
}

TEST(GraphCheck, SixteenLettersAreTheDeepest) {
    Dict dict;
    AddWord(dict, "ABCDEFGHIJKLMNOP");
    EXPECT_EQ(FindBrokenInvariant(dict), std::nullopt);
    dict.edges[15].SetChild(16);
    dict.edges[16].bits = 0x51C00000;
    ++dict.numedges;
    --dict.spareEdges;
    dict.triesize += 4;
    EXPECT_EQ(FindBrokenInvariant(dict), "edge 15: deeper than 16 letters");
}

}  // namespace
}  // namespace quillet
