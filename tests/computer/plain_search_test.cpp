#include "computer/plain_search.h"

#include <set>

#include "game/validation.h"
#include "support/positions.h"
#include "support/testing.h"

namespace quillet {
namespace {

Strings Found(std::string_view rack, std::optional<int> ceiling = std::nullopt) {
    CandidateList list;
    SearchPlainly(RequestFor(rack, ceiling), list);
    return Describe(list);
}

TEST(PlainSearch, FirstMovesCoverTheStartSquareAcrossBeforeDownShortLeftPartsFirst) {
    SetUpPlainBoard({"A", "AT", "TA"});
    EXPECT_THAT(Found("TA"), ElementsAre("across AT 8,8: A@8,8 T@8,9 = 2", "across TA 8,8: T@8,8 A@8,9 = 2",
                                         "across AT 8,7: A@8,7 T@8,8 = 2", "across TA 8,7: T@8,7 A@8,8 = 2",
                                         "down AT 8,8: A@8,8 T@8,9 = 2", "down TA 8,8: T@8,8 A@8,9 = 2",
                                         "down AT 8,7: A@8,7 T@8,8 = 2", "down TA 8,7: T@8,7 A@8,8 = 2",
                                         "across A 8,8: A@8,8 = 1", "down A 8,8: A@8,8 = 1"));
}

TEST(PlainSearch, SingleTileBelowAWordIsFoundOnlyDown) {
    SetUpPlainBoard({"A", "AT", "T"});
    LayFrozenTiles(8, 8, "AA");
    EXPECT_THAT(Found("T"), ElementsAre("down AT 8,8: T@8,9 = 2", "down AT 9,8: T@9,9 = 2"));
}

TEST(PlainSearch, RealTileRatherThanBlankLandsOnTheSquareOfHigherKind) {
    const std::tuple<const char*, int, std::string> cases[] = {
        // kinds of the squares 8,8 to 8,10, a blank's value; tiles of the word AXA there, and its score
        {"...", 0, "A@8,8 X@8,9 [A@8,10 = 9"},   // left to right
        {"..d", 0, "[A@8,8 X@8,9 A@8,10 = 10"},  // moved
        {"..d", 1, "A@8,8 X@8,9 [A@8,10 = 11"},  // a blank no worse than the letter stays
        {"d..", 0, "A@8,8 X@8,9 [A@8,10 = 10"},
        {"t.D", 0, "A@8,8 X@8,9 [A@8,10 = 22"},  // by kind, not by what it scores
        {"p.P", 0, "[A@8,8 X@8,9 A@8,10 = 45"},  // even to a lower score
    };
    for (const auto& [kinds, blankValue, tiles] : cases) {
        SetUpPlainBoard({"AXA"});
        for (int i = 0; i < 3; ++i) game.board[8][8 + i].kind = KindFromCharacter(kinds[i]);
        game.settings.letterValues[kBlank] = blankValue;
        EXPECT_THAT(Found("[XA"), Contains("across AXA 8,8: " + tiles)) << kinds;
    }
}

TEST(PlainSearch, BonusWordInTheListIsFoundTwice) {
    SetUpPlainBoard({"AT"});
    FillDict(bonusDict, {"AT"});
    LayFrozenTiles(8, 8, "A");
    game.settings.bonusWordValue = 25;
    EXPECT_THAT(Found("T"), ElementsAre("across AT 8,8: T@8,9 = 2", "down AT 8,8: T@8,9 = 2"));
    game.settings.bonusWordsEnabled = true;
    EXPECT_THAT(Found("T"), ElementsAre("across AT 8,8: T@8,9 = 27 + 1", "down AT 8,8: T@8,9 = 27 + 1",
                                        "across AT 8,8: T@8,9 = 2", "down AT 8,8: T@8,9 = 2"));
}

TEST(PlainSearch, TwentyBestAreKeptAndAmongEqualsTheFirstFound) {
    SetUpPlainBoard({"AB", "AC", "AD", "AE", "AF", "AG"});
    for (char letter = 'A'; letter <= 'G'; ++letter) game.settings.letterValues[letter] = letter - 'A' + 1;
    const auto wordsFromA = [](const std::string& letters) {
        Strings texts;
        for (char letter : letters) {
            const std::string score = " = " + std::to_string(letter - 'A' + 2);
            for (const std::string direction : {"across A", "down A"}) {
                texts.push_back(direction + letter + " 8,8: A@8,8 " + letter + "@8,9" + score);
                texts.push_back(direction + letter + " 8,7: A@8,7 " + letter + "@8,8" + score);
            }
        }
        return texts;
    };
    EXPECT_EQ(Found("ABCDEFG"), wordsFromA("GFEDC"));
    EXPECT_EQ(Found("ABCDEFG", 6), wordsFromA("EDCB"));
}

// The placed tiles and their score.
std::string PlacedText() {
    std::string text;
    ForEachSquare([&](BoardPosition at, const Square& square) {
        const std::string place = std::to_string(at.row) + "," + std::to_string(at.col);
        if (square.IsPlaced()) text += square.letter + place + " ";
    });
    return text + "= " + std::to_string(ScoreMove(true, CollectPlacedTiles()));
}

// Lays tiles of the rack in every way from that square on; collects what the rules of the game allow.
void LayInEveryWay(std::string& rack, BoardPosition at, BoardPosition step, std::set<std::string>& legal) {
    const PlacedTiles placed = CollectPlacedTiles();
    if (placed.count > 0 && ValidatePlacement(placed.extent)) {
        const std::string text = PlacedText();
        const auto isKnown = [](const Text<15>& word) { return IsWord(mainDict, word); };
        if (std::ranges::all_of(formedWords.List(), isKnown)) legal.insert(text);
    }
    const auto advance = [&] { at.row += step.row, at.col += step.col; };
    while (game.board[at.row][at.col].IsLetterSquare()) advance();
    Square& square = game.board[at.row][at.col];
    if (!game.bounds.Contains(at.row, at.col) || !square.IsEmpty()) return;
    advance();
    for (char& code : rack) {
        if (code == 0) continue;
        square = {square.kind, SquareState::Placed, std::exchange(code, '\0'), 0};
        LayInEveryWay(rack, at, step, legal);
        code = square.letter;
    }
    square.state = SquareState::Empty;
}

std::set<std::string> LegalPlacements(std::string rack) {
    std::set<std::string> legal;
    ForEachSquare([&](BoardPosition at, const Square&) {
        LayInEveryWay(rack, at, {0, 1}, legal);
        LayInEveryWay(rack, at, {1, 0}, legal);
    });
    return legal;
}

std::set<std::string> PlacementsOf(const CandidateList& list) {
    std::set<std::string> placements;
    for (const Candidate& candidate : list.List()) {
        LayTiles(candidate, SquareState::Placed);
        placements.insert(PlacedText());
        TakeBackTiles();
    }
    return placements;
}

TEST(PlainSearch, FindsExactlyWhatTheRulesAllow) {
    int compared = 0;
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        RandomPosition world(seed);
        game.settings.bonusWordsEnabled = false;
        for (int turn = 0; turn < 6; ++turn) {
            std::string rack = world.DrawRack().substr(0, 3);
            std::ranges::replace(rack, kBlank, 'A');
            CandidateList list;
            SearchPlainly(RequestFor(rack), list);
            if (!list.IsFull()) {  // a full list has dropped some
                EXPECT_EQ(PlacementsOf(list), LegalPlacements(rack)) << "game " << seed << " rack " << rack;
                compared += list.count > 0;
            }
            if (list.count > 0) LayTiles(list.entries[world.Between(1, list.count)], SquareState::Frozen);
        }
    }
    EXPECT_GT(compared, 50);
}

}  // namespace
}  // namespace quillet
