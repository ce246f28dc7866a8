// What every move search takes in: a board, a rack and what counts as a word. Nothing of it is changed.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "game/game_state.h"
#include "words/dict.h"

namespace quillet {

struct SearchRequest {
    const Board& board;  // without Placed tiles
    const BoardBounds& bounds;
    const GameSettings& settings;
    const Dict& mainDict;
    const Dict& bonusDict;
    std::string_view rack;            // 1..7 codes, in rack order
    std::optional<int> scoreCeiling;  // moves that score more are left out
    bool showWords = false;           // the best words appear in the status lines as they are found

    bool UsesBonusWords() const { return settings.bonusWordsEnabled && bonusDict.numwords > 0; }
    bool HasWords() const { return mainDict.numwords > 0 || UsesBonusWords(); }
    bool IsFirstMove() const { return board[settings.startRow][settings.startCol].IsEmpty(); }
};

// How many tiles of each code a rack holds.
struct RackCounts {
    PerLetter<std::uint16_t> count;
    int vowels = 0;  // A, E, I, O and U
};

RackCounts CountRack(std::string_view rack);

// The letters that the rack could put on a square, a bit for each of A..Z: all of them with a blank.
std::uint32_t SuppliedLetters(const RackCounts& counts);

}  // namespace quillet
