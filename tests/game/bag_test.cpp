#include "game/bag.h"

#include "support/world.h"

namespace quillet {
namespace {

using BagRules = World;

std::vector<int> Numbers(int min, int max, int count) {
    std::vector<int> numbers;
    while (count-- > 0) numbers.push_back(Rand(min, max));
    return numbers;
}

TEST_F(BagRules, RandomNumbersOfASeedNeverChange) {
    headless.localTime = {.hour = 1, .minute = 2, .second = 3, .millisecond = 4};
    SeedRandomFromClock();
    EXPECT_THAT(Numbers(1, 100, 10), ElementsAre(76, 63, 39, 25, 32, 27, 34, 74, 80, 31));
    SeedRandom(20240307);
    EXPECT_THAT(Numbers(0, 32766, 8), ElementsAre(747, 1342, 13244, 5645, 716, 20681, 21407, 5354));
}

TEST_F(BagRules, RandStaysInItsRange) {
    SeedRandom(1086332660);  // the first raw number, 2^32 - 2, is the whole range in single precision
    EXPECT_TRUE(Rand(1, 6) == 6 && Rand(5, 4) == 5 && headless.messages.empty());
    EXPECT_EQ(Rand(5, 3), 5);
    EXPECT_THAT(TakeMessages(), ElementsAre("Bad Rand call: min > max"));
}

TEST_F(BagRules, FillBagReportsTheFirstFaultOfTheLetterCounts) {
    const std::string zeros(26, '0');
    for (const auto& [counts, fatal] : {std::pair(std::string("9224<2329114268216464221215"), ""),
                                        {"9224<2329114268216464221216", "Too many blanks!"},
                                        {zeros + "6", "Too many blanks!"},
                                        {"L" + zeros, ""},  // 28
                                        {"K" + zeros, "Too few letters!"},
                                        {"\xF8" + zeros, ""},  // 200
                                        {"\xF9" + zeros, "Too many letters!"},
                                        {"\xF9/" + zeros, "Bug: tilesleft <> totaltiles!"}}) {  // 201 and -1
        game.settings.letterCounts = LetterTableFromText<std::int16_t>(counts);
        try {
            FillBag();
            EXPECT_STREQ(fatal, "") << counts;
        } catch (const ProgramEnd&) {
            EXPECT_THAT(TakeMessages(), ElementsAre(fatal)) << counts;
        }
    }
}

TEST_F(BagRules, LetterMixPenaltyCountsVowelsDuplicatesAndALonelyQ) {
    for (const auto& [rack, penalty] : {std::pair{"AEBCDFG", 0},
                                        {"AEIOUYS", 10},
                                        {"BCDFGHS", 2},
                                        {"ABCDFGH", 1},
                                        {"QEERSTA", 3},
                                        {"QUERSTA", 0},
                                        {"??AEBCD", 2},
                                        {"EEEABCD", 20},
                                        {"EEAABCD", 20}}) {
        GiveRack(1, rack);
        EXPECT_EQ(LetterMixPenalty(game.players[1].rack), penalty) << rack;
    }
}

TEST_F(BagRules, NiceLetterMixKeepsTheFirstOfTheBestDraws) {
    const auto deal = [](std::uint32_t seed, bool nice) {
        preferences.niceLetterMix = nice;
        SetPlayers({"Ada"});
        FillBag();
        GiveRack(1, "QEE");
        SeedRandom(seed);
        DrawToPositions(std::array{4, 5, 7, 8}, 1);
        EXPECT_EQ(RackOf(1).size() + game.bag.tilesleft, 100U);
        return std::pair(LetterMixPenalty(game.players[1].rack), RackOf(1));
    };
    int improved = 0;
    for (std::uint32_t seed = 0; seed < 60; ++seed) {
        const auto plain = deal(seed, false);
        const auto nice = deal(seed, true);
        EXPECT_TRUE(nice.first < plain.first || nice == plain) << seed;
        improved += nice.first < plain.first;
    }
    EXPECT_GT(improved, 0);

    GiveRack(1, "");
    LeaveInBag("BCDFGHJKLM");
    SeedRandom(5);
    DrawToPositions(std::array{1, 2, 3, 4, 5, 6, 7}, 1);
    const int next = Rand(1, 1000);
    SeedRandom(5);
    Numbers(1, 10, 11 * 7);
    EXPECT_EQ(Rand(1, 1000), next) << "gives up after ten redraws";
}

}  // namespace
}  // namespace quillet
