// The scenario's bonus words: up to 100 words that earn extra points when a move forms them.
//
// Owns bonusWords, the table as the scenario gives it, and rebuilds bonusDict from it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "words/dict.h"

namespace quillet {

constexpr int kMaxBonusWords = 100;

// The first empty entry ends the table.
using BonusWordTable = std::array<Word, kMaxBonusWords>;

inline BonusWordTable bonusWords;

// Makes bonusDict hold the table's words: stops at the first entry that is empty or cannot be added (the
// table holds what the scenario's file says, which need not be letters).
void BuildBonusDict(const BonusWordTable& table);

// Makes the table hold the words of bonusDict, which were edited there.
void TakeBonusWords();

// The points for a bonus word, as they were typed; none, with a warning, when that is no number that they can
// be.
std::optional<std::int16_t> ReadBonusPoints(std::string_view typed);

// Reads the bonus words of the scenario in that folder, one a line in its file "602.str", and builds
// bonusDict. A missing file means none. Of a line the first 16 characters count, of the file the first 100
// lines; a NUL ends a word; a last line without a line end counts too.
void LoadBonusWords(std::string_view scenarioFolder);

// Writes the table to that file. False, with a warning, when that cannot be done.
bool WriteBonusWords(std::string_view scenarioFolder);

}  // namespace quillet
