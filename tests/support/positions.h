// Positions for tests of the move search: boards set up by hand, and whole made-up games from a seed.
//
// Both fill game, mainDict and bonusDict, because scoring looks there.
#pragma once

#include <iterator>
#include <random>
#include <set>

#include "computer/candidate_list.h"
#include "computer/search.h"
#include "game/game_state.h"
#include "support/testing.h"
#include "words/dict.h"

namespace quillet {

inline void FillDict(Dict& dict, const std::set<std::string>& words) {
    MakeStore(dict, 0);
    for (const std::string& word : words) AddWord(dict, word);
}

// A plain 15 x 15 board with the default letters, these words and no bonus words.
inline void SetUpPlainBoard(const std::set<std::string>& words) {
    game = FreshGameState();
    FillDict(mainDict, words);
    FillDict(bonusDict, {});
}

// Lays tiles of earlier moves across from (row, col).
inline void LayFrozenTiles(int row, int col, std::string_view tiles) {
    for (char tile : tiles) {
        game.board[row][col].state = SquareState::Frozen;
        game.board[row][col++].letter = tile;
    }
}

inline SearchRequest RequestFor(std::string_view rack, std::optional<int> scoreCeiling = std::nullopt) {
    return {.board = game.board,
            .bounds = game.bounds,
            .settings = game.settings,
            .mainDict = mainDict,
            .bonusDict = bonusDict,
            .rack = rack,
            .scoreCeiling = scoreCeiling};
}

inline void LayTiles(const Candidate& candidate, SquareState state) {
    for (int n = 1; n <= candidate.numTiles; ++n) {
        const int row = candidate.rows[n];
        const int col = candidate.cols[n];
        Square& square = candidate.transposed ? game.board[col][row] : game.board[row][col];
        square = {square.kind, state, candidate.letters[n], candidate.blankLetters[n]};
    }
}

inline void TakeBackTiles() {
    ForEachSquare([](BoardPosition at, const Square& square) {
        if (square.IsPlaced()) game.board[at.row][at.col].state = SquareState::Empty;
    });
}

// "down CAT 8,7: C@8,7 [T@8,9 = 4": rows and columns as searched, "[T" a blank for T; "+ 1" a bonus word.
inline std::string Describe(const Candidate& candidate) {
    const auto at = [&](int col) { return std::to_string(candidate.rows[1]) + "," + std::to_string(col); };
    std::string text(candidate.transposed ? "down " : "across ");
    (text += candidate.word.View()) += " " + at(candidate.firstCol) + ":";
    for (int n = 1; n <= candidate.numTiles; ++n) {
        EXPECT_EQ(candidate.rows[n], candidate.rows[1]);
        (text += " ") += candidate.letters[n];
        if (candidate.letters[n] == kBlank) text += candidate.blankLetters[n];
        text += "@" + at(candidate.cols[n]);
    }
    text += " = " + std::to_string(candidate.score);
    return candidate.bonusCount == 0 ? text : text + " + " + std::to_string(candidate.bonusCount);
}

inline Strings Describe(const CandidateList& list) {
    Strings texts;
    for (const Candidate& candidate : list.List()) texts.push_back(Describe(candidate));
    return texts;
}

// A game of a made-up scenario: few letters, so that many words cross, and unlikely boards and values.
// The same seed gives the same game.
class RandomPosition {
  public:
    explicit RandomPosition(std::uint32_t seed) : random(seed) {
        game = FreshGameState();
        std::shuffle(letters.begin(), letters.end(), random);
        letters.resize(2 + Below(4));
        MakeWords();
        MakeBoard();
        MakeValues();
    }

    std::size_t Below(std::size_t limit) { return random() % limit; }
    int Between(int low, int high) { return low + static_cast<int>(Below(std::size_t(high - low + 1))); }

    // A rack of 1 to 7 tiles, now and then with many blanks.
    std::string DrawRack() {
        const std::size_t size = Below(3) == 0 ? 1 + Below(7) : 7;
        const std::size_t blanks = Below(12) == 0 ? Below(5) : Below(5) / 3;
        std::string rack;
        while (rack.size() < size) rack += rack.size() < blanks ? kBlank : DrawLetter();
        std::shuffle(rack.begin(), rack.end(), random);
        return rack;
    }

    std::optional<int> DrawCeiling() {
        return Below(4) == 0 ? std::optional<int>(Between(-20, 60)) : std::nullopt;
    }

  private:
    char DrawLetter() { return letters[Below(letters.size())]; }

    std::string DrawWord() {
        const std::size_t longest = 2 + Below(14);
        std::string word;
        for (std::size_t length = 1 + Below(longest); word.size() < length;) word += DrawLetter();
        return word;
    }

    void MakeWords() {
        std::set<std::string> words;
        const std::size_t shortest = 1 + Below(2);
        const std::size_t count = Below(12) == 0 ? 0 : 4 + Below(Below(2) == 0 ? 60 : 600);
        while (words.size() < count) {
            std::string word = DrawWord();
            if (word.size() < shortest) continue;
            for (int anagrams = Below(20) == 0 ? 400 : 2; anagrams > 0; --anagrams) {
                words.insert(word);
                std::shuffle(word.begin(), word.end(), random);
            }
        }
        std::set<std::string> bonus;
        for (std::size_t n = Below(12); n > 0; --n) bonus.insert(DrawWord());
        std::ranges::copy_if(words, std::inserter(bonus, bonus.end()), [&](auto&) { return Below(20) == 0; });
        FillDict(mainDict, words);
        FillDict(bonusDict, bonus);
    }

    void MakeBoard() {
        const int shortest = Below(5) == 0 ? 1 : 9;
        game.settings.boardRows = static_cast<std::int16_t>(Between(shortest, shortest + 6));
        game.settings.boardCols = static_cast<std::int16_t>(Between(shortest, shortest + 6));
        ComputeBounds();
        const std::size_t style = Below(6);  // premium squares: none, all of one kind, or a mixture
        const std::size_t onlyKind = Below(9);
        const std::size_t blockedPercent = Below(3) == 0 ? 15 : 1;
        std::string squares(kBoardSize * kBoardSize, '.');
        for (char& square : squares) {
            if (style == 1) square = kSquareKinds[onlyKind].character;
            if (style > 1 && Below(2) == 0) square = kSquareKinds[Below(9)].character;
            if (Below(100) < blockedPercent) square = '1';
        }
        LoadSquares(squares);
        const BoardBounds& bounds = game.bounds;
        game.settings.startRow = static_cast<std::int16_t>(Between(bounds.firstRow, bounds.lastRow));
        game.settings.startCol = static_cast<std::int16_t>(Between(bounds.firstCol, bounds.lastCol));
    }

    void MakeValues() {
        game.settings.bonusWordsEnabled = Below(2) == 0;
        game.settings.bonusWordValue = std::array<std::int16_t, 4>{25, 0, -7, 300}[Below(4)];
        game.settings.sevenLetterBonus = std::array{0, 50, 999}[Below(3)];
        static constexpr std::pair<int, int> kRanges[] = {{0, 10}, {1, 1}, {-48, 207}, {-5, 2}, {100, 207}};
        const auto [low, high] = kRanges[Below(5)];
        for (std::int32_t& value : game.settings.letterValues.entries) value = Between(low, high);
        if (Below(2) == 0) game.settings.letterValues[kBlank] = 0;
    }

    std::mt19937 random;
    std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
};

}  // namespace quillet
