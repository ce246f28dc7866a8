#include "game/validation.h"

#include "game/bag.h"
#include "support/world.h"
#include "words/dict.h"

namespace quillet {
namespace {

// What lies or is printed on the board from a square, its row and column, on.
using Pieces = std::vector<std::tuple<int, int, std::string>>;

// The board before a move, and the move's tiles. Kinds of squares are one-character pieces.
struct Position {
    Pieces squares, frozen, placed;
};

class Validation : public World {
  protected:
    static PlacedTiles Lay(const Position& position) {
        game.board = {};
        FillBag();
        game.players[1].rack = {};
        for (const auto& [row, col, text] : position.squares) SetSquare(row, col, text[0]);
        for (const auto& [row, col, text] : position.frozen) FreezeTiles(row, col, text);
        for (const auto& [row, col, text] : position.placed) {
            std::string codes = text;
            std::erase_if(codes, [](char c) { return c == '/' || c == '.'; });
            GiveRack(1, codes);
            PutTiles(row, col, text);
        }
        return CollectPlacedTiles();
    }

    static std::string Formed() {
        std::string words;
        for (const Text<15>& word : formedWords.List()) words += std::string(word.View()) + " ";
        return words.substr(0, words.size() - 1);
    }
};

const Pieces kCat{{8, 7, "CAT"}};

TEST_F(Validation, FirstBrokenRuleIsReported) {
    const std::string start = "First move must cover the starting square.";
    const std::string line = "Added letters must form a horizontal or vertical line.";
    const std::string contact = "Added letters must be connected to an existing word.";
    const std::string unbroken = "Added letters must form an unbroken line.";
    const std::tuple<std::string, Position, std::string> cases[] = {
        {"start square free, and no line", {{}, {}, {{1, 1, "A/.B"}}}, start},
        {"first move in two directions", {{}, {}, {{8, 8, "A/.B"}}}, line},
        {"no line, and no contact", {{}, kCat, {{1, 1, "A/.B"}}}, line},
        {"no contact, and a gap", {{}, kCat, {{1, 1, "A.B"}}}, contact},
        {"touching at a corner", {{}, kCat, {{9, 10, "S"}}}, contact},
        {"touching a blocked square", {{{10, 7, "1"}}, kCat, {{10, 8, "S"}}}, contact},
        {"a gap", {{}, kCat, {{9, 7, "O/./D"}}}, unbroken},
        {"first move with a gap", {{}, {}, {{8, 8, "A.B"}}}, unbroken},
        {"blocked square in the line", {{{8, 9, "6"}}, {}, {{8, 8, "A.B"}}}, unbroken},
        {"first move of one tile", {{}, {}, {{8, 8, "A"}}}, ""},
        {"gap filled by an earlier tile", {{}, kCat, {{7, 8, "E/./E"}}}, ""},
        {"contact through one of several", {{}, kCat, {{9, 9, "OWW"}}}, ""},
    };
    for (const auto& [name, position, message] : cases) {
        EXPECT_EQ(ValidatePlacement(Lay(position).extent), message.empty()) << name;
        EXPECT_EQ(TakeMessages(), Strings(message.empty() ? 0 : 1, message)) << name;
    }
}

TEST_F(Validation, BlanksAreAskedForAtEachDoneUntilOneIsCancelled) {
    const Span extent = Lay({{}, {}, {{8, 7, "xAx"}}}).extent;
    recorded.blankLetters = {'C', 'T', std::nullopt, 'B'};
    EXPECT_TRUE(ValidatePlacement(extent));
    EXPECT_TRUE(game.board[8][7].blankLetter == 'C' && game.board[8][9].blankLetter == 'T');
    EXPECT_FALSE(ValidatePlacement(extent));
    EXPECT_THAT(Calls("Ask"), ElementsAre("AskBlankLetter 8 7", "AskBlankLetter 8 9", "AskBlankLetter 8 7"));
}

TEST_F(Validation, ScoresAndFormedWords) {
    const Pieces qi{{8, 8, "qI"}};
    const std::tuple<Position, int, std::string> cases[] = {
        {{{}, {}, {{8, 8, "Q"}}}, 10, "Q"},
        {{{{8, 8, "D"}}, {}, {{8, 4, "HOUSE"}}}, 16, "HOUSE"},
        {{{{8, 8, "D"}}, {{8, 4, "HOUSE"}}, {{8, 9, "S"}}}, 9, "HOUSES"},  // a used premium
        {{{{8, 7, "D"}, {8, 9, "T"}, {8, 8, "q"}}, {}, kCat}, (3 + 4 + 1) * 2 * 3, "CAT"},
        {{{{9, 9, "t"}}, kCat, {{9, 9, "O"}}}, 1 + 3, "TO"},
        {{{{8, 8, "D"}}, {{7, 7, "CA/T"}}, {{8, 8, "O"}}}, 2 * 2 + 2 * 2, "TO AO"},
        {{{{9, 7, "P"}}, kCat, {{9, 7, "OXO"}}}, 10 * 5 + 4 * 5 + 9 + 2, "OXO CO AX TO"},
        {{{}, kCat, {{7, 10, "A/S/K"}}}, 7 + 6, "ASK CATS"},
        {{{{8, 8, "T"}}, {{8, 8, "A"}}, {{8, 7, "C.T"}}}, 5, "CAT"},
        {{{{8, 8, "T"}}, {}, {{8, 2, "RETAINS"}}}, 7 * 3 + 50, "RETAINS"},
        {{{{8, 8, "t"}}, {}, qi}, 3 * 2 + 1, "QI"},
        {{{}, qi, {{8, 10, "S"}}}, 2 + 1 + 1, "QIS"},
        {{{{8, 9, "2"}}, {{8, 10, "T"}}, {{8, 8, "A"}}}, 1, "A"},  // a blocked square between
    };
    game.settings.letterValues[kBlank] = 2;
    for (const auto& [position, score, words] : cases) {
        EXPECT_EQ(ScoreMove(true, Lay(position)), score) << words;
        EXPECT_EQ(Formed(), words);
    }
}

TEST_F(Validation, BonusWordsAddTheirValueUnlessABlankIsUnknown) {
    SetBonusWords({"CAT", "AX"}, 25);
    const PlacedTiles placed = Lay({{}, {{8, 7, "CA"}, {9, 9, "X"}}, {{8, 9, "t"}}});
    EXPECT_EQ(ScoreMove(true, placed), 4 + 25 + 8);
    EXPECT_EQ(ScoreMove(false, placed), 4 + 8);
    EXPECT_EQ(Formed(), "CA? ?X");
    game.settings.bonusWordsEnabled = false;
    EXPECT_EQ(ScoreMove(true, placed), 4 + 8);
}

TEST_F(Validation, EachUnknownWordIsAskedForOnceAndBonusWordsNever) {
    SetWords({"AX"});
    SetBonusWords({"OXO"}, 25);
    ScoreMove(true, Lay({{}, kCat, {{9, 7, "OXO"}}}));
    headless.answers = {false, true};
    EXPECT_FALSE(CheckFormedWords());
    EXPECT_EQ(headless.questions.front().text, "Add \"CO\" to the current word list?");
    EXPECT_FALSE(headless.questions.front().yesIsDefault);
    EXPECT_TRUE(game.bonusWordsThisMove == 1 && IsWord(mainDict, "TO"));
    game.settings.bonusWordsEnabled = false;
    headless.answers = {true, true};
    EXPECT_TRUE(CheckFormedWords());
    EXPECT_EQ(game.bonusWordsThisMove, 0);
    EXPECT_EQ(headless.questions.size(), 4U);
}

}  // namespace
}  // namespace quillet
