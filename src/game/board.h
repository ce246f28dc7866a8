// The board: a grid of squares with what each is worth and what lies on it.
//
// Coordinates are (row, column), 1-based, rows growing downwards. The grid is 17 x 17: rows and columns
// 1..15 are the board, 0 and 16 an ever empty border, so that a neighbour of any board square exists.
#pragma once

#include <array>
#include <cstdint>

#include "game/letters.h"

namespace quillet {

constexpr int kBoardSize = 15;
constexpr int kGridSize = kBoardSize + 2;

// 0..14, the index into kSquareKinds. Kinds 0..8 can be played on; 9..14 are the blocked picture squares
// 1..6, which never hold a tile, are never part of a word and break lines.
using SquareKind = std::uint8_t;

struct SquareKindInfo {
    char character;  // in the squares text of scenarios and saved games
    int letterFactor;
    int wordFactor;
};

constexpr std::array<SquareKindInfo, 15> kSquareKinds{{
    {'.', 1, 1},
    {'d', 2, 1},
    {'D', 1, 2},
    {'t', 3, 1},
    {'T', 1, 3},
    {'q', 4, 1},
    {'Q', 1, 4},
    {'p', 5, 1},
    {'P', 1, 5},
    {'1', 1, 1},
    {'2', 1, 1},
    {'3', 1, 1},
    {'4', 1, 1},
    {'5', 1, 1},
    {'6', 1, 1},
}};
constexpr SquareKind kFirstBlockedKind = 9;

constexpr bool IsPlayable(SquareKind kind) { return kind < kFirstBlockedKind; }

// The kind with that character; any other character is a plain square.
constexpr SquareKind KindFromCharacter(char character) {
    for (SquareKind kind = 0; kind < kSquareKinds.size(); ++kind) {
        if (kSquareKinds[kind].character == character) return kind;
    }
    return 0;
}

enum class SquareState : std::uint8_t {
    Empty = 0,
    Placed = 1,  // put down by the player to move during this turn; can still be taken back
    Frozen = 2,  // a tile of an earlier move, or a blocked picture square
};

struct Square {
    SquareKind kind = 0;
    SquareState state = SquareState::Empty;
    LetterCode letter = 0;       // the tile's code; only meaningful while the square is not empty
    LetterCode blankLetter = 0;  // the letter a blank stands for; meaningless otherwise

    bool IsEmpty() const { return state == SquareState::Empty; }
    bool IsPlaced() const { return state == SquareState::Placed; }
    // Holds a tile of an earlier move.
    bool IsLetterSquare() const { return state == SquareState::Frozen && IsPlayable(kind); }
    // The letter that the tile gives to a word.
    LetterCode ShownLetter() const { return letter == kBlank ? blankLetter : letter; }

    friend constexpr bool operator==(const Square&, const Square&) = default;
};

// Gives the square that kind, without a tile; a blocked one holds its picture.
constexpr void SetSquareKind(Square& square, SquareKind kind) {
    square = {.kind = kind};
    if (IsPlayable(kind)) return;
    square.state = SquareState::Frozen;
    square.letter = kSquareKinds[kind].character;
}

using Board = std::array<std::array<Square, kGridSize>, kGridSize>;

// Has any tile been played?
constexpr bool HoldsTiles(const Board& board) {
    for (const auto& row : board) {
        for (const Square& square : row) {
            if (square.IsLetterSquare()) return true;
        }
    }
    return false;
}

// The part of the grid that a scenario's board occupies; first and last are both inside.
struct BoardBounds {
    int firstRow = 1;
    int lastRow = kBoardSize;
    int firstCol = 1;
    int lastCol = kBoardSize;

    constexpr bool Contains(int row, int col) const {
        return row >= firstRow && row <= lastRow && col >= firstCol && col <= lastCol;
    }

    friend constexpr bool operator==(const BoardBounds&, const BoardBounds&) = default;
};

}  // namespace quillet
