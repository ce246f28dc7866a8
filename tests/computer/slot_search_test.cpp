#include "computer/slot_search.h"

#include <gtest/gtest.h>

#include "computer/plain_search.h"
#include "game/validation.h"
#include "support/positions.h"
#include "support/recording_presentation.h"

namespace quillet {
namespace {

CandidateList FoundBySlots(const SearchRequest& request) {
    EXPECT_TRUE(CanSearchSlots(request));
    WordIndex mainIndex;
    WordIndex bonusIndex;
    mainIndex.Update(request.mainDict);
    bonusIndex.Update(request.bonusDict);
    CandidateList list;
    SearchSlots(request, mainIndex, bonusIndex, list);
    return list;
}

bool IsKnown(std::string_view word) {
    return IsWord(mainDict, word) || (game.settings.bonusWordsEnabled && IsBonusWord(word));
}

// Lays the move on the board as a player would, and asks the rules of the game about it.
void ExpectLegalAndRightlyScored(const Candidate& candidate) {
    LayTiles(candidate, SquareState::Placed);
    recorded.blankLetters.clear();
    for (int n = 1; n <= candidate.numTiles; ++n) {
        if (candidate.letters[n] == kBlank) recorded.blankLetters.emplace_back(candidate.blankLetters[n]);
    }
    const PlacedTiles placed = CollectPlacedTiles();
    EXPECT_EQ(placed.count, candidate.numTiles);
    EXPECT_TRUE(ValidatePlacement(placed.extent));
    int score = ScoreMove(true, placed);
    int bonusCount = 0;
    for (const Text<15>& word : formedWords.List()) {
        EXPECT_TRUE(IsKnown(word)) << word.View();
        bonusCount += game.settings.bonusWordsEnabled && IsBonusWord(word);
    }
    if (bonusCount == candidate.bonusCount + 1) {  // the ordinary twin of a bonus word
        EXPECT_TRUE(IsBonusWord(candidate.word));
        score -= game.settings.bonusWordValue;
        --bonusCount;
    }
    EXPECT_EQ(candidate.score, score) << Describe(candidate);
    EXPECT_EQ(candidate.bonusCount, bonusCount) << Describe(candidate);
    TakeBackTiles();
}

// The list that both searches find.
CandidateList ExpectSameList(const SearchRequest& request) {
    CandidateList plain;
    SearchPlainly(request, plain);
    EXPECT_EQ(Describe(plain), Describe(FoundBySlots(request))) << "rack " << request.rack;
    return plain;
}

class SlotSearchGames : public testing::TestWithParam<std::uint32_t> {};

TEST_P(SlotSearchGames, FindsWhatThePlainSearchFindsAndTheRulesAllowIt) {
    for (std::uint32_t seed = GetParam() * 1000; seed < GetParam() * 1000 + 40; ++seed) {
        SCOPED_TRACE(seed);
        RandomPosition world(seed);
        for (int turn = 0; turn < 16; ++turn) {
            const std::string rack = world.DrawRack();
            const CandidateList found = ExpectSameList(RequestFor(rack, world.DrawCeiling()));
            for (const Candidate& candidate : found.List()) ExpectLegalAndRightlyScored(candidate);
            if (HasFailure()) return;
            if (found.count == 0) continue;
            LayTiles(found.entries[world.Between(1, found.count)], SquareState::Frozen);
        }
        recorded = {};
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SlotSearchGames, testing::Range(1U, 7U));

TEST(SlotSearch, WordsAsLongAsTheBoardAreFound) {
    SetUpPlainBoard({"ABCDEFGHIJKLMNO"});
    LayFrozenTiles(8, 8, "HIJKLMNO");
    EXPECT_EQ(ExpectSameList(RequestFor("ABCDEFG")).count, 1);
}

TEST(SlotSearch, HighestWordFactorsKeepTheBestMove) {
    SetUpPlainBoard({"ABCDEF", "BCDEFG", "ABCDEFG"});
    LoadSquares(std::string(kBoardSize * kBoardSize, 'P'));
    game.settings.letterValues.entries.fill(1);
    EXPECT_EQ(ExpectSameList(RequestFor("ABCDEFG")).entries[1].score, 7 * 78125 + 50);
}

TEST(SlotSearch, RacksOfManyBlanksFindWhatThePlainSearchFinds) {
    for (std::uint32_t seed = 1; seed <= 6; ++seed) {
        RandomPosition world(seed);
        for (std::size_t blanks = 5; blanks <= 7; ++blanks) {
            const std::string rack(blanks, kBlank);
            ExpectSameList(RequestFor(rack));
        }
    }
}

}  // namespace
}  // namespace quillet
