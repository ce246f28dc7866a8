// What happens to tiles when they are picked up and dropped: the rules of moving, swapping, shifting and
// making room, on the rack and on the board, for one tile or a group carried with it.
//
// Changes the current player's rack, the Placed squares and game.thrownBack, and shows each step as it is
// made.
#pragma once

#include <optional>
#include <vector>

#include "base/text.h"
#include "game/game_state.h"
#include "platform/geometry.h"

namespace quillet {

// Tiles on their way. The carried tile still stands, in the game, where it came from; the others have left
// their places.
struct TileGroup {
    LetterCode letter = 0;
    int slot = 0;              // of the rack it came from, 1..8; 0: it came from the board
    BoardPosition square{};    // of the board it came from
    Text<kRackSize> before{};  // the tiles to its left or above it, nearest first
    Text<kRackSize> after{};
    bool alongColumn = false;       // how the group will be laid out; else along the row
    bool foundAlongColumn = false;  // how it was found
    // Where the others came from, in the order of `before` and `after`.
    std::vector<BoardPosition> beforeSquares{};
    std::vector<BoardPosition> afterSquares{};

    bool FromRack() const { return slot != 0; }
};

// Takes the tile of that slot or square; with `wholeRun` the neighbouring tiles come along, from the board
// those along the row, or along the column. Nothing is drawn yet.
TileGroup PickUpFromRack(int slot, bool wholeRun, bool alongColumn);
TileGroup PickUpFromBoard(BoardPosition square, bool wholeRun, bool alongColumn);

// Draws every place that the group left as it is without it.
void EraseOrigins(const TileGroup& group);

// Where a group is dropped: on a rack slot, on a square of the scenario's board, or neither.
struct DropTarget {
    int slot = 0;
    std::optional<BoardPosition> square{};
    bool overBag = false;  // and the bag takes tiles
};
void DropGroup(const TileGroup& group, const DropTarget& target);

// The group goes back where it came from.
void PutGroupBack(const TileGroup& group);

// Appends the letter to those thrown back; Fatal when there are seven already.
void ThrowBack(LetterCode letter);

// The letter thrown back last returns to the rack.
void ReturnThrownLetter();

// Puts a tile on a square for this turn; takes one from it. Both are shown.
void PlaceTile(BoardPosition square, LetterCode letter);
void RemoveTile(BoardPosition square);

// The same for the current player's rack.
void PutOnSlot(int slot, LetterCode letter);
void EmptySlot(int slot);

}  // namespace quillet
