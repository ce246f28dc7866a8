// The scenario's bonus words: up to 100 words that earn extra points when a move forms them.
//
// Owns bonusWords, the table as the scenario gives it, and rebuilds bonusDict from it.
#pragma once

#include <array>

#include "words/dict.h"

namespace quillet {

constexpr int kMaxBonusWords = 100;

// The first empty entry ends the table.
using BonusWordTable = std::array<Word, kMaxBonusWords>;

inline BonusWordTable bonusWords;

// Makes bonusDict hold the table's words: stops at the first entry that is empty or cannot be added (the
// table holds what the scenario's file says, which need not be letters).
void BuildBonusDict(const BonusWordTable& table);

}  // namespace quillet
