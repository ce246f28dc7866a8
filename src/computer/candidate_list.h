// The best moves found by a search, at most 20, best first.
//
// Equal scores stand in the order in which the plain search would find them, whichever search found them:
// by anchor (across before down, row by row, bonus words before ordinary ones), within an anchor by the
// letters left of it (a shorter left part before its extensions), then by the word.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "base/one_based.h"
#include "base/text.h"
#include "game/game_state.h"

namespace quillet {

constexpr int kMaxCandidates = 20;
constexpr int kTopWords = 5;  // shown live while searching

struct Candidate {
    std::uint16_t numTiles = 0;  // tiles taken from the rack, 1..7
    // The placed tiles from left to right along the row searched; rows and columns are those of the board
    // as searched, so exchanged for a down move.
    OneBased<std::uint8_t, kRackSize> rows;
    OneBased<std::uint8_t, kRackSize> cols;
    OneBased<LetterCode, kRackSize> letters;       // "[" for a blank
    OneBased<LetterCode, kRackSize> blankLetters;  // what the blank stands for
    std::int32_t score = 0;
    std::uint8_t bonusCount = 0;  // bonus words formed
    bool transposed = false;      // a down move
    std::int32_t value = 0;       // strategic value, filled by the move choice

    Text<kBoardSize> word;      // whole, with the letters already on the board
    std::uint8_t firstCol = 0;  // where it begins, in the board as searched

    // Its place in the order of finding: the anchor's rank, then the first leftLength letters of the word,
    // then the word.
    std::uint32_t rank = 0;
    std::uint8_t leftLength = 0;
};

struct CandidateList {
    OneBased<Candidate, kMaxCandidates> entries;
    int count = 0;

    bool IsFull() const { return count == kMaxCandidates; }
    const Candidate& Last() const { return entries[count]; }
    std::span<const Candidate> List() const {
        return {entries.entries.data(), static_cast<std::size_t>(count)};
    }
};

// Does `a` stand before `b`?
bool StandsBefore(const Candidate& a, const Candidate& b);

// Puts the candidate in its place, unless the list is full of better ones or has it; the 21st drops off. With
// `showWords`, the first five words then stand in status lines 2 to 6 when one of them is new.
void InsertCandidate(CandidateList& list, const Candidate& candidate, bool showWords);

}  // namespace quillet
