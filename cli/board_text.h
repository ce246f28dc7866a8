// Boards as text: read from files, drawn in a terminal.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "computer/candidate_list.h"
#include "game/game_state.h"

namespace quillet {

// Sets the squares of the game's board from 15 lines of 15 square characters, and its bounds. Anything else
// ends the command; `name` says where the text comes from.
void SetSquares(const std::string& text, const std::string& name);

// Puts tiles on the game's board from 15 lines of 15 characters: "." no tile, an upper-case letter a tile,
// a lower-case letter a blank that stands for it. Anything else ends the command.
void SetTiles(const std::string& text, const std::string& name);

// The codes of a rack written with "?" for a blank, in either case. Anything but 1 to 7 letters ends the
// command.
std::string RackCodes(const std::string& letters);

// Codes as a player reads them, "?" for a blank.
std::string RackText(std::string_view codes);

// "8H": the row's number and the column's letter.
std::string SquareName(int row, int col);

// "QUILLS at 8D across": the word, and where it begins, of the play whose tiles lie on these squares of the
// board; a blank's letter in lower case.
std::string PlayText(std::span<const BoardPosition> squares);

// What a move was, as long as its tiles lie on the board: as PlayText, or "exchanges AB?", or "passes".
std::string MoveText(const MoveRecord& record);

// A move that could be played, as PlayText.
std::string CandidateText(const Candidate& candidate);

// The board with its tiles, a blank's letter in lower case, and its premium squares; `placed` squares stand
// out. With colour for a terminal that shows it.
std::string BoardText(bool colour);

}  // namespace quillet
