#include "computer/move_choice.h"

#include <gtest/gtest.h>

#include "computer/move_generator.h"
#include "game/bag.h"
#include "game/validation.h"
#include "store/preferences.h"
#include "support/positions.h"

namespace quillet {
namespace {

constexpr int kComputer = 2;

// A game of a human and a computer, the computer to move and the start square taken.
class MoveChoice : public testing::Test {
  protected:
    MoveChoice() {
        SetUpPlainBoard({});
        game.numPlayers = 2;
        game.players[kComputer].isComputer = true;
        game.currentPlayer = kComputer;
        game.bag.totaltiles = 100;
        game.bag.tilesleft = 50;
        ResetExchangeCounts();
        LayFrozenTiles(8, 8, "A");
        moveSearch = {};
    }

    // Adds a candidate that plays these codes from that column on.
    static void AddCandidate(std::string_view letters, int score, int firstCol = 1, bool transposed = false) {
        Candidate& candidate = moveSearch.candidates.entries[++moveSearch.candidates.count];
        candidate.numTiles = static_cast<std::uint16_t>(letters.size());
        for (int n = 1; n <= candidate.numTiles; ++n) {
            candidate.letters[n] = letters[static_cast<std::size_t>(n) - 1];
            candidate.cols[n] = static_cast<std::uint8_t>(firstCol + n - 1);
        }
        candidate.score = score;
        candidate.transposed = transposed;
    }

    static void SetStartSquareEmpty(bool isEmpty) {
        game.board[8][8].state = isEmpty ? SquareState::Empty : SquareState::Frozen;
    }
};

TEST_F(MoveChoice, StrategicValueCountsWhatIsUsedAndLeft) {
    struct Case {
        const char *what, *rack, *played;
        int score, bag, expected;
        int firstMoveCol = 0;  // where a first move begins
    };
    const Case cases[] = {
        {"a point for each tile", "TRAINED", "TRA", 30, 50, 33},
        {"a whole rack of seven earns nothing more", "TRAINED", "TRAINED", 30, 50, 37},
        {"the whole of a shorter rack", "TRA", "TRA", 30, 0, 133},
        {"only vowels left", "TRNAEIO", "TRN", 30, 50, 33 - 7},
        {"no vowel left", "TRAINED", "AIE", 30, 50, 33 - 5},
        {"a single letter left", "TRAINED", "TRINED", 30, 50, 36},
        {"a blank among what is left", "AIETRN[", "AIE", 30, 50, 33},
        {"only vowels left, but an empty bag", "TRNAEIO", "TRN", 30, 0, 33},
        {"three of a letter left", "TTTAEIR", "AIR", 30, 50, 33 - 6},
        {"two pairs left", "TTRRAEI", "AE", 30, 50, 32 - 8},
        {"a Q played", "QUTRAEN", "QUA", 30, 50, 33 + 10},
        {"the only U played without the Q", "QUTRAEN", "TUN", 30, 50, 33 - 10},
        {"an S played", "STRAINE", "STR", 30, 7, 33 - 4},
        {"a blank played", "[TRAINE", "[TR", 30, 7, 33 - 8},
        {"four of a letter left", "EEEETRN", "TRN", 30, 7, kTooPoor},
        {"four of a letter left late", "EEEETRN", "TRN", 30, 6, 33 - 7 - 8},
        {"few points for few tiles", "TRAINED", "TRAI", 13, 7, kTooPoor},
        {"enough points for few tiles", "TRAINED", "TRA", 14, 7, 17},
        {"few points for five tiles", "TRAINED", "TRAIN", 13, 7, 18},
        {"few points for a blank", "TRAINE[", "TRAI[", 19, 7, kTooPoor},
        {"enough points for a blank", "TRAINE[", "TRAI[", 20, 7, 25 - 8},
        {"a first move near the left edge", "TRAINED", "TRA", 30, 50, 33 + 3, 4},
        {"a first move to the right", "TRAINED", "TRA", 30, 50, 33 + 4, 9},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        SetStartSquareEmpty(test.firstMoveCol != 0);
        moveSearch = {.rackCounts = CountRack(test.rack), .candidates = {}};
        game.bag.tilesleft = static_cast<std::uint16_t>(test.bag);
        AddCandidate(test.played, test.score, std::max(test.firstMoveCol, 1));
        EXPECT_EQ(EvaluateCandidates(kStrategicLevel, test.rack), 1);
        EXPECT_EQ(moveSearch.candidates.entries[1].value, test.expected);
        EvaluateCandidates(kHighestScoringLevel, test.rack);
        EXPECT_EQ(moveSearch.candidates.entries[1].value, test.score);
    }
}

TEST_F(MoveChoice, EqualMovesAreChosenByDirectionAtFirstAndByOrderLater) {
    const std::tuple<std::string, int, int> cases[] = {
        // moves, a: across, d: down, a capital scores more; the one chosen on the first move, and later
        {"ad", 1, 1}, {"da", 2, 1}, {"aad", 2, 1}, {"dd", 1, 1}, {"Daa", 1, 1}, {"aDd", 2, 2}, {"adad", 3, 1},
    };
    for (const auto& [moves, first, later] : cases) {
        for (const bool isFirst : {true, false}) {
            SetStartSquareEmpty(isFirst);
            moveSearch = {};
            for (const char move : moves)
                AddCandidate("TRA", IsLetter(move) ? 11 : 10, 1, ToUpper(move) == 'D');
            EXPECT_EQ(EvaluateCandidates(kHighestScoringLevel, "TRAINED"), isFirst ? first : later) << moves;
        }
    }
}

TEST_F(MoveChoice, LowLevelsPlayTheBestMoveUpToARandomCeiling) {
    constexpr std::pair<int, int> kCeilings[] = {{3, 10},  {5, 15},  {7, 20},  {10, 25},
                                                 {15, 30}, {20, 35}, {25, 40}, {30, 45}};
    SetUpPlainBoard({"A", "B", "C", "D"});
    for (int level = 0; level < kHighestScoringLevel; ++level) {
        const auto [lowest, highest] = kCeilings[level];
        const int values[] = {lowest - 1, lowest, highest, highest + 1};
        for (int i = 0; i < 4; ++i) game.settings.letterValues[static_cast<char>('A' + i)] = values[i];
        std::set<int> scores;
        for (std::uint32_t seed = 1; seed <= 200; ++seed) {
            SeedRandom(seed);
            scores.insert(FindMove(level, "ABCD").score);
            TakeBackTiles();
        }
        EXPECT_EQ(scores, (std::set{lowest, highest})) << level;
    }
}

TEST_F(MoveChoice, ExchangeKeepsWhatIsHardToGetBack) {
    constexpr std::pair<const char*, const char*> kCases[] = {
        {"QUSSEA[", "SEA"}, {"XZJQAEI", "JQAEI"}, {"JXZ", "Z"}, {"QA", "QA"},  {"AQ[", "A"},
        {"UUQ", "U"},       {"QUU", "U"},         {"U", "U"},   {"SSS", "SS"}, {"QU[", ""},
    };
    FillDict(mainDict, {"WWWW"});
    for (const auto& [rack, thrown] : kCases) {
        EXPECT_EQ(FindMove(kHighestScoringLevel, rack).usedLetters, thrown) << rack;
        ResetExchangeCounts();
    }
}

TEST_F(MoveChoice, WithoutAMoveTilesAreExchangedUnlessThereIsReasonToPass) {
    const std::set<std::string> none, tooLong{"WWWW"}, poor{"AT"};
    using Case = std::tuple<const char*, int, int, std::set<std::string>, bool, const char*, int>;
    const Case cases[] = {
        // tiles in the bag, exchanges before, the words, whether a computer moves; what is thrown back, and
        // the
        // exchanges then
        {"sixth exchange", 7, 5, tooLong, true, "TR", 6},
        {"pass after six exchanges", 7, 6, tooLong, true, "", 6},
        {"pass with a low bag", 6, 0, tooLong, true, "", 0},
        {"pass without words", 50, 0, none, true, "", 0},
        {"a hint counts for nothing", 7, 2, tooLong, false, "TR", 2},
        {"poor move after two exchanges", 50, 2, poor, true, "TR", 3},
        {"poor move after three exchanges", 50, 3, poor, true, "T", 0},
    };
    for (const auto& [what, bag, exchangesBefore, words, isComputer, thrown, exchangesAfter] : cases) {
        SCOPED_TRACE(what);
        FillDict(mainDict, words);
        FillDict(bonusDict, {"WWWW"});  // not enabled
        game.bag.tilesleft = static_cast<std::uint16_t>(bag);
        game.players[kComputer].isComputer = isComputer;
        exchangeCount[kComputer] = static_cast<std::uint16_t>(exchangesBefore);
        const ChosenMove move = FindMove(kStrategicLevel, "TR");
        EXPECT_EQ(move.usedLetters, thrown);
        EXPECT_EQ(exchangeCount[kComputer], exchangesAfter);
        EXPECT_EQ(CollectPlacedTiles().count, move.score == 2 ? 1 : 0);
    }
}

TEST_F(MoveChoice, WordsAreShownForHintsAndOpenRacksOnly) {
    FillDict(mainDict, {"AT", "TA"});
    for (const auto& [isHint, showsLetters] : {std::pair{false, false}, {false, true}, {true, false}}) {
        game.players[kComputer].isComputer = !isHint;
        preferences.showComputerLetters = showsLetters;
        FindMove(kHighestScoringLevel, "T");
        TakeBackTiles();
        EXPECT_EQ(game.statusLines[2], isHint || showsLetters ? "TA" : "");
    }
    preferences = {};
}

}  // namespace
}  // namespace quillet
