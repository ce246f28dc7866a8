// Which tiles of the rack a word's letters take, and where a blank among them goes.
#pragma once

#include "computer/candidate_list.h"
#include "game/game_state.h"

namespace quillet {

// Adds to the candidate the tile for a letter of its word on (row, col), to the right of those already
// added. A tile of that letter among `tiles` is used up (its place there becomes 0); otherwise a blank
// stands for the letter. A blank worth less than its letter changes places with a real tile of that letter
// that lies on a lower kind of square, so that the real tile ends on the better square.
// kindAt(col) gives the kind of a square of that row.
template <typename KindAt>
void AddTile(Candidate& candidate, Text<kRackSize>& tiles, int row, int col, LetterCode letter,
             const LetterValues& values, KindAt kindAt) {
    const int n = ++candidate.numTiles;
    candidate.rows[n] = static_cast<std::uint8_t>(row);
    candidate.cols[n] = static_cast<std::uint8_t>(col);
    candidate.letters[n] = letter;
    candidate.blankLetters[n] = 0;
    const auto real = tiles.View().find(letter);
    if (real != std::string_view::npos) {
        tiles[real] = 0;
        return;
    }
    int blank = n;
    if (values[kBlank] < values[letter]) {
        for (int tile = 1; tile < n; ++tile) {
            const bool isReal = candidate.letters[tile] == letter;
            if (isReal && kindAt(candidate.cols[tile]) < kindAt(candidate.cols[blank])) blank = tile;
        }
    }
    candidate.letters[blank] = kBlank;
    candidate.blankLetters[blank] = letter;
}

}  // namespace quillet
