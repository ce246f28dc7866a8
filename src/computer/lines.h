// The board as a search along its lines sees it: for rows and for columns, what each square allows and
// what it is worth.
#pragma once

#include <array>
#include <cstdint>

#include "computer/search.h"
#include "words/word_index.h"

namespace quillet {

enum class LineSquareState : std::uint8_t { Empty, Tile, Blocked };  // outside the bounds counts as blocked

struct LineSquare {
    std::uint32_t bonusMask = 0;  // letters that make a bonus word across the line
    std::int32_t crossSum = 0;    // values of the tiles of the word across the line
    std::int32_t value = 0;  // of the tile here; on a crossed square, the most that a tile allowed is worth
    LineSquareState state = LineSquareState::Blocked;
    SquareKind kind = 0;
    bool isAnchor = false;
    bool isCrossed = false;  // a tile here makes a word across the line
    LetterCode letter = 0;   // that a tile here gives to words

    bool IsEmpty() const { return state == LineSquareState::Empty; }
    bool IsTile() const { return state == LineSquareState::Tile; }
};

struct Line {
    std::array<LineSquare, kGridSize> squares;
    // Letters that may stand on each square, a bit for each of A..Z; on a tile's square, the tile's letter.
    std::array<std::uint32_t, kGridSize> allowed{};

    LineSquare& operator[](int i) { return squares[i]; }
    const LineSquare& operator[](int i) const { return squares[i]; }
};

// All lines of one direction. 1-based; first and last are both inside.
struct Lines {
    std::array<Line, kGridSize> lines;
    int firstLine = 1;
    int lastLine = kBoardSize;
    int first = 1;
    int last = kBoardSize;
};

using BoardLines = std::array<Lines, 2>;  // the rows, for plays across, and the columns

// Reads the board and makes the cross-checks: which letters the rack can supply fit each square. On the
// first move there must be no tiles on the board, and the start square is the only anchor.
void ReadLines(const SearchRequest& request, const RackCounts& rack, const WordIndex& mainIndex,
               BoardLines& board);

}  // namespace quillet
