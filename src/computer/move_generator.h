// Every legal move for a rack on the board of the game: the 20 best of them.
//
// Owns moveSearch, the result of the latest search, and the word indexes behind it. Changes nothing of the
// game but the status lines.
#pragma once

#include <optional>
#include <string_view>

#include "computer/candidate_list.h"
#include "computer/search.h"

namespace quillet {

struct MoveSearch {
    bool hadWords = false;  // was there any word to search for?
    RackCounts rackCounts;
    CandidateList candidates;
};

inline MoveSearch moveSearch;

// Fills moveSearch for a rack of 1 to 7 codes in rack order. Moves scoring more than the ceiling are left
// out. Obeys the idle pump: an abort ends the search with what it has found. The board must hold no Placed
// tiles. For a hint, or when computer letters are shown, the five best words appear in status lines 2 to 6.
void GenerateMoves(std::string_view rack, std::optional<int> scoreCeiling, bool isHint);

}  // namespace quillet
