#include "computer/lines.h"

#include <algorithm>
#include <bit>

namespace quillet {
namespace {

LineSquare ReadSquare(const Square& square, const LetterValues& values) {
    LineSquare result;
    result.kind = square.kind;
    if (square.IsEmpty()) {
        result.state = LineSquareState::Empty;
    } else if (square.IsLetterSquare()) {
        result.state = LineSquareState::Tile;
        result.letter = square.ShownLetter();
        result.value = values[square.letter];
    }
    return result;
}

// The tiles next to a square of a line, on both sides, with a gap for the square itself.
struct CrossWord {
    Text<kBoardSize> letters;
    std::size_t gap = 0;
    LetterKey key = 0;
    std::int32_t sum = 0;
    bool isSpelt = true;  // of letters only
};

CrossWord ReadCrossWord(const Line& line, int at) {
    CrossWord cross;
    int from = at;
    while (line[from - 1].IsTile()) --from;
    for (int i = from; i == at || line[i].IsTile(); ++i) {
        if (i == at) {
            cross.gap = cross.letters.size();
            cross.letters.Append('?');
            continue;
        }
        cross.letters.Append(line[i].letter);
        cross.sum += line[i].value;
        cross.isSpelt = cross.isSpelt && IsLetter(line[i].letter);
        if (IsLetter(line[i].letter)) cross.key += KeyOf(line[i].letter);
    }
    return cross;
}

struct CrossChecker {
    const SearchRequest& request;
    const RackCounts& rack;
    const WordIndex& mainIndex;
    std::uint32_t supplied;

    std::int32_t BestValue(std::uint32_t allowed) const;
    void Check(Line& line, int at, CrossWord cross) const;
    void CheckLines(Lines& along, const Lines& athwart) const;
};

// The most that a tile of the rack is worth which may stand for one of these letters.
std::int32_t CrossChecker::BestValue(std::uint32_t allowed) const {
    const LetterValues& values = request.settings.letterValues;
    std::int32_t best = rack.count[kBlank] > 0 ? values[kBlank] : INT32_MIN;
    for (std::uint32_t rest = allowed; rest != 0; rest &= rest - 1) {
        const auto letter = static_cast<LetterCode>('A' + std::countr_zero(rest));
        if (rack.count[letter] > 0) best = std::max(best, values[letter]);
    }
    return best;
}

void CrossChecker::Check(Line& line, int at, CrossWord cross) const {
    LineSquare& square = line[at];
    square.isCrossed = true;
    square.crossSum = cross.sum;
    std::uint32_t allowed = 0;
    if (cross.isSpelt) {
        for (std::uint32_t rest = supplied; rest != 0; rest &= rest - 1) {
            const auto letter = static_cast<LetterCode>('A' + std::countr_zero(rest));
            cross.letters[cross.gap] = letter;
            if (request.UsesBonusWords() && IsWord(request.bonusDict, cross.letters)) {
                allowed |= LetterBit(letter);
                square.bonusMask |= LetterBit(letter);
            } else if (mainIndex.Contains(cross.letters, cross.key + KeyOf(letter))) {
                allowed |= LetterBit(letter);
            }
        }
    }
    line.allowed[at] = allowed;
    square.isAnchor = allowed != 0;
    square.value = allowed != 0 ? BestValue(allowed) : 0;
}

void CrossChecker::CheckLines(Lines& along, const Lines& athwart) const {
    for (int n = along.firstLine; n <= along.lastLine; ++n) {
        Line& line = along.lines[n];
        for (int i = along.first; i <= along.last; ++i) {
            LineSquare& square = line[i];
            if (!square.IsEmpty()) continue;
            const Line& across = athwart.lines[i];
            if (across[n - 1].IsTile() || across[n + 1].IsTile()) {
                Check(line, i, ReadCrossWord(across, n));
            } else {
                square.isAnchor = line[i - 1].IsTile() || line[i + 1].IsTile();
            }
        }
    }
}

}  // namespace

void ReadLines(const SearchRequest& request, const RackCounts& rack, const WordIndex& mainIndex,
               BoardLines& board) {
    const BoardBounds& bounds = request.bounds;
    Lines& rows = board[0];
    Lines& cols = board[1];
    rows = Lines{{}, bounds.firstRow, bounds.lastRow, bounds.firstCol, bounds.lastCol};
    cols = Lines{{}, bounds.firstCol, bounds.lastCol, bounds.firstRow, bounds.lastRow};
    for (int row = bounds.firstRow; row <= bounds.lastRow; ++row) {
        for (int col = bounds.firstCol; col <= bounds.lastCol; ++col) {
            const LineSquare square = ReadSquare(request.board[row][col], request.settings.letterValues);
            const std::uint32_t allowed = square.IsEmpty() ? kAllLetters : LetterBit(square.letter);
            rows.lines[row][col] = square;
            rows.lines[row].allowed[col] = allowed;
            cols.lines[col][row] = square;
            cols.lines[col].allowed[row] = allowed;
        }
    }
    if (request.IsFirstMove()) {
        rows.lines[request.settings.startRow][request.settings.startCol].isAnchor = true;
        cols.lines[request.settings.startCol][request.settings.startRow].isAnchor = true;
        return;
    }
    const CrossChecker checker{request, rack, mainIndex, SuppliedLetters(rack)};
    checker.CheckLines(rows, cols);
    checker.CheckLines(cols, rows);
}

}  // namespace quillet
