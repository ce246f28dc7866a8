// Every choice of tiles that a rack allows, for searches that ask which letters make a word.
#pragma once

#include <array>
#include <cstdint>

#include "computer/search.h"
#include "words/word_index.h"

namespace quillet {

// Values of tiles, or weights of squares, highest first: seven places and one of zeros.
using SortedValues = std::array<std::int16_t, kRackSize + 1>;

// The different non-empty subsets of a rack of at most 7 tiles, numbered by size; within a size, those
// without a blank come first. A table of columns, because the search runs along single columns.
//
// A blank of a subset can stand for any letter of which no real tile is left on the rack: a real tile is
// always used before a blank.
struct RackSubsets {
    static constexpr int kMaxSubsets = 127;
    static constexpr int kMaxOfOneSize = 35;

    std::array<LetterKey, kMaxSubsets> keys;              // of the real tiles
    std::array<SortedValues, kMaxSubsets> values;         // of all tiles
    std::array<std::uint8_t, kMaxSubsets> blanks;         // how many
    std::array<std::uint32_t, kMaxSubsets> blankLetters;  // what they may stand for, a bit for each of A..Z

    std::array<std::uint8_t, kRackSize + 2> first{};       // by size: its subsets are first[size] up to
    std::array<std::uint8_t, kRackSize + 2> firstBlank{};  // first[size + 1], those with blanks from here

    int CountOfSize(int size) const { return first[size + 1] - first[size]; }
};

RackSubsets SubsetsOf(const RackCounts& rack, const LetterValues& values);

}  // namespace quillet
