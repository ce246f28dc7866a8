#include "game/validation.h"

#include <algorithm>
#include <optional>

#include "base/messages.h"
#include "base/presentation.h"
#include "words/dict.h"

namespace quillet {
namespace {

bool IsLetterSquare(int row, int col) { return game.board[row][col].IsLetterSquare(); }

int LetterSquaresBeside(int row, int col) {
    return IsLetterSquare(row - 1, col) + IsLetterSquare(row + 1, col) + IsLetterSquare(row, col - 1) +
           IsLetterSquare(row, col + 1);
}

template <typename Visit>
void ForEachPlacedIn(const Span& span, Visit visit) {
    for (int row = span.firstRow; row <= span.lastRow; ++row) {
        for (int col = span.firstCol; col <= span.lastCol; ++col) {
            if (game.board[row][col].IsPlaced()) visit(row, col);
        }
    }
}

bool IsConnected(const Span& extent) {
    int contacts = 0;
    ForEachPlacedIn(extent, [&](int row, int col) { contacts += LetterSquaresBeside(row, col); });
    return contacts > 0;
}

bool IsUnbroken(const Span& extent) {
    for (int row = extent.firstRow; row <= extent.lastRow; ++row) {
        for (int col = extent.firstCol; col <= extent.lastCol; ++col) {
            const Square& square = game.board[row][col];
            if (square.IsEmpty() || !IsPlayable(square.kind)) return false;
        }
    }
    return true;
}

bool AskBlankLetters(const Span& extent) {
    for (int row = extent.firstRow; row <= extent.lastRow; ++row) {
        for (int col = extent.firstCol; col <= extent.lastCol; ++col) {
            Square& square = game.board[row][col];
            if (!square.IsPlaced() || square.letter != kBlank) continue;
            const std::optional<char> letter = AskBlankLetter(row, col);
            if (!letter) return false;
            square.blankLetter = *letter;
        }
    }
    return true;
}

// The span made longer at both ends of a row or column over adjacent tiles of earlier moves.
Span ExtendedAlongRow(Span span) {
    while (IsLetterSquare(span.firstRow, span.firstCol - 1)) --span.firstCol;
    while (IsLetterSquare(span.firstRow, span.lastCol + 1)) ++span.lastCol;
    return span;
}

Span ExtendedAlongColumn(Span span) {
    while (IsLetterSquare(span.firstRow - 1, span.firstCol)) --span.firstRow;
    while (IsLetterSquare(span.lastRow + 1, span.firstCol)) ++span.lastRow;
    return span;
}

Text<15> WordText(const Span& span, bool blanksKnown) {
    Text<15> text;
    for (int row = span.firstRow; row <= span.lastRow; ++row) {
        for (int col = span.firstCol; col <= span.lastCol; ++col) {
            const Square& square = game.board[row][col];
            const bool unknown = !blanksKnown && square.IsPlaced() && square.letter == kBlank;
            text.Append(unknown ? '?' : square.ShownLetter());
        }
    }
    return text;
}

// Adds the span's word to formedWords; its points, with the bonus a bonus word earns.
int ScoreFormedWord(const Span& span, bool blanksKnown) {
    const Text<15> text = WordText(span, blanksKnown);
    formedWords.words[static_cast<std::size_t>(formedWords.count++)] = text;
    const int bonus = game.settings.bonusWordsEnabled && IsBonusWord(text) ? game.settings.bonusWordValue : 0;
    return WordScore(game.board, game.settings.letterValues, span) + bonus;
}

}  // namespace

PlacedTiles CollectPlacedTiles() {
    PlacedTiles placed;
    ForEachSquare([&](BoardPosition at, const Square& square) {
        if (!square.IsPlaced()) return;
        Span& extent = placed.extent;
        extent = {std::min<int>(extent.firstRow, at.row), std::max<int>(extent.lastRow, at.row),
                  std::min<int>(extent.firstCol, at.col), std::max<int>(extent.lastCol, at.col)};
        ++placed.count;
    });
    return placed;
}

bool ValidatePlacement(const Span& extent) {
    const Square& start = game.board[game.settings.startRow][game.settings.startCol];
    if (start.IsEmpty()) {
        Warning("First move must cover the starting square.");
        return false;
    }
    if (extent.firstRow != extent.lastRow && extent.firstCol != extent.lastCol) {
        Warning("Added letters must form a horizontal or vertical line.");
        return false;
    }
    if (start.state == SquareState::Frozen && !IsConnected(extent)) {
        Warning("Added letters must be connected to an existing word.");
        return false;
    }
    if (!IsUnbroken(extent)) {
        Warning("Added letters must form an unbroken line.");
        return false;
    }
    return AskBlankLetters(extent);
}

int WordScore(const Board& board, const LetterValues& values, const Span& span) {
    int sum = 0;
    int factor = 1;
    for (int row = span.firstRow; row <= span.lastRow; ++row) {
        for (int col = span.firstCol; col <= span.lastCol; ++col) {
            const Square& square = board[row][col];
            if (square.IsLetterSquare()) {
                sum += values[square.letter];
            } else if (square.IsPlaced()) {
                sum += values[square.letter] * kSquareKinds[square.kind].letterFactor;
                factor *= kSquareKinds[square.kind].wordFactor;
            }
        }
    }
    return sum * factor;
}

int ScoreMove(bool blanksKnown, const PlacedTiles& placed) {
    formedWords.count = 0;
    const Span& extent = placed.extent;
    const bool horizontal =
        extent.firstRow == extent.lastRow &&
        (extent.firstCol != extent.lastCol || IsLetterSquare(extent.firstRow, extent.firstCol - 1) ||
         IsLetterSquare(extent.firstRow, extent.firstCol + 1));
    const Span main = horizontal ? ExtendedAlongRow(extent) : ExtendedAlongColumn(extent);
    int score = ScoreFormedWord(main, blanksKnown);
    if (blanksKnown) formedWords.remembered = formedWords.words[0];
    ForEachPlacedIn(main, [&](int row, int col) {
        const Span square{row, row, col, col};
        const Span cross = horizontal ? ExtendedAlongColumn(square) : ExtendedAlongRow(square);
        const bool alone = cross.firstRow == cross.lastRow && cross.firstCol == cross.lastCol;
        if (!alone) score += ScoreFormedWord(cross, blanksKnown);
    });
    if (placed.count == kRackSize) score += game.settings.sevenLetterBonus;
    return score;
}

bool CheckFormedWords() {
    game.bonusWordsThisMove = 0;
    bool allKnown = true;
    for (const Text<15>& word : formedWords.List()) {
        if (game.settings.bonusWordsEnabled && IsBonusWord(word)) {
            ++game.bonusWordsThisMove;
        } else if (!AskToAddWord(word)) {
            allKnown = false;
        }
    }
    return allKnown;
}

PlayScore ComputeScore(const Board& board, const GameSettings& settings, const CrossTables& cross, int row,
                       int firstCol, int lastCol, int tilesPlaced, bool mainWordIsBonus) {
    PlayScore play;
    play.score = WordScore(board, settings.letterValues, {row, row, firstCol, lastCol});
    const auto addBonusWord = [&] {
        play.score += settings.bonusWordValue;
        ++play.bonusCount;
    };
    for (int col = firstCol; col <= lastCol; ++col) {
        const Square& square = board[row][col];
        if (!square.IsPlaced()) continue;
        if (!board[row - 1][col].IsLetterSquare() && !board[row + 1][col].IsLetterSquare()) continue;
        const int sum = cross.sum[row][col];
        if (IsPlayable(square.kind)) {
            const SquareKindInfo& kind = kSquareKinds[square.kind];
            play.score += (sum + settings.letterValues[square.letter] * kind.letterFactor) * kind.wordFactor;
        } else {
            Warning("Bug in ComputeScore");
            play.score += sum;
        }
        if (settings.bonusWordsEnabled && (cross.bonusMask[row][col] & LetterBit(square.ShownLetter()))) {
            addBonusWord();
        }
    }
    if (tilesPlaced == kRackSize) play.score += settings.sevenLetterBonus;
    if (mainWordIsBonus) addBonusWord();
    return play;
}

}  // namespace quillet
