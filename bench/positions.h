// The positions that the search is measured on: boards from the middle of games between two players of
// level 8 with the Large list, and the rack of the player to move. bench/positions.txt keeps them, so that
// figures stay comparable; make_positions made it.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "game/game_state.h"
#include "words/dict.h"

namespace quillet {

struct Position {
    Board board;
    std::string rack;  // codes, "[" for a blank
};

constexpr int kMaxBlanksMeasured = 2;

struct PositionSet {
    std::string squares;  // of the board they were played on: 225 square characters
    std::array<std::vector<Position>, kMaxBlanksMeasured + 1> byBlanks;
};

// One line: the rack, a space, and 225 characters: ".", a tile's letter, a blank's letter in lower case.
std::string PositionLine(const Position& position);

// Reads bench/positions.txt; the game's settings, board and bounds are then those of its board.
PositionSet ReadPositions();

// Makes the Large list the main dict's, read from its file.
Dict ReadLargeList();

}  // namespace quillet
