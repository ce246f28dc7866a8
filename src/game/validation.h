// The rules of placing and scoring: is a placement legal, which words does it form, what is it worth, are
// the words known.
//
// Owns formedWords; writes the letters of placed blanks and game.bonusWordsThisMove.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "base/text.h"
#include "game/game_state.h"

namespace quillet {

// A rectangle of squares, 1-based, both ends inside.
struct Span {
    int firstRow = 0;
    int lastRow = 0;
    int firstCol = 0;
    int lastCol = 0;
};

// Where the player to move has put tiles.
struct PlacedTiles {
    Span extent{kGridSize - 1, 0, kGridSize - 1, 0};
    int count = 0;
};

// The main word and the cross words of the move scored last.
struct FormedWords {
    std::array<Text<15>, 8> words;
    int count = 0;
    // The first word of the latest move, or hint, whose blanks were known: the one that can be looked up.
    Text<15> remembered;

    std::span<const Text<15>> List() const { return {words.data(), static_cast<std::size_t>(count)}; }
};

inline FormedWords formedWords;

// Every Placed square within the bounds.
PlacedTiles CollectPlacedTiles();

// Checks the placement and asks for the letters of its blanks. False after the warning that says why, or
// when the player cancels a blank's question; the tiles stay where they are.
bool ValidatePlacement(const Span& extent);

// The points of the placement; fills formedWords. With blanksKnown false, as for the live display, placed
// blanks read "?" and words that hold one are never bonus words.
int ScoreMove(bool blanksKnown, const PlacedTiles& placed);

// The points of one word. Premiums count only under Placed tiles; empty and blocked squares add nothing.
int WordScore(const Board& board, const LetterValues& values, const Span& span);

// Checks each formed word, offering to add unknown ones; sets game.bonusWordsThisMove. False when a word
// stays unknown.
bool CheckFormedWords();

// What the move search knows about the column words through the squares of a row.
struct CrossTables {
    std::array<std::array<std::int16_t, kGridSize>, kGridSize> sum{};  // values of the word's tiles
    // Letters that complete a bonus word, a bit for each of A..Z.
    std::array<std::array<std::uint32_t, kGridSize>, kGridSize> bonusMask{};
};

struct PlayScore {
    int score = 0;
    int bonusCount = 0;  // bonus words formed
};

// The score of a play along a row whose tiles stand on the board as Placed; equal to ScoreMove's for the
// same placement, without looking up a word.
PlayScore ComputeScore(const Board& board, const GameSettings& settings, const CrossTables& cross, int row,
                       int firstCol, int lastCol, int tilesPlaced, bool mainWordIsBonus);

}  // namespace quillet
