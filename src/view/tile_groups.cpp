#include "view/tile_groups.h"

#include <algorithm>
#include <cstdlib>

#include "base/messages.h"
#include "base/presentation.h"
#include "platform/ticks.h"
#include "store/preferences.h"
#include "view/board_drawing.h"

namespace quillet {
namespace {

constexpr std::uint32_t kStepPause = 50;  // milliseconds, so that the eye can follow a tile

Rack& CurrentRack() { return game.Current().rack; }

Square& SquareOf(BoardPosition at) { return game.board[at.row][at.col]; }

bool IsOnBoard(BoardPosition at) { return game.bounds.Contains(at.row, at.col); }

// A step along a row or a column, forwards (+1) or backwards (-1).
BoardPosition Stepped(BoardPosition at, bool alongColumn, int by) {
    (alongColumn ? at.row : at.col) = static_cast<std::int16_t>((alongColumn ? at.row : at.col) + by);
    return at;
}

void PauseUnlessClicking() {
    const bool clicks = preferences.playSounds && preferences.playTileClicks;
    if (!clicks) Pause(kStepPause);
}

// --- Picking up ---

// New tiles from a square on in one direction, nearest first, past fixed tiles, up to an empty square.
std::vector<BoardPosition> NewTilesFrom(BoardPosition square, bool alongColumn, int direction) {
    std::vector<BoardPosition> found;
    for (BoardPosition at = Stepped(square, alongColumn, direction); IsOnBoard(at) && !SquareOf(at).IsEmpty();
         at = Stepped(at, alongColumn, direction)) {
        if (SquareOf(at).IsPlaced()) found.push_back(at);
    }
    return found;
}

void TakeAll(const std::vector<BoardPosition>& squares, Text<kRackSize>& letters) {
    for (const BoardPosition& at : squares) {
        letters.Append(SquareOf(at).letter);
        SquareOf(at).state = SquareState::Empty;
    }
}

void TakeRun(int from, int direction, Text<kRackSize>& letters) {
    for (int slot = from + direction; slot >= 1 && slot <= kRackPositions; slot += direction) {
        LetterCode& code = CurrentRack().positions[slot];
        if (code == 0) return;
        letters.Append(code);
        code = 0;
    }
}

// --- Putting down ---

void PutOnFreeSlot(LetterCode letter, int slot) {
    if (slot == 0) Fatal("Bug: no empty squares?!");
    PutOnSlot(slot, letter);
}

// The nearest free slot from there on in that direction; else the one farthest away on the other side.
int FreeSlotBeside(int from, int direction) {
    const auto& slots = CurrentRack().positions;
    for (int slot = from + direction; slot >= 1 && slot <= kRackPositions; slot += direction) {
        if (slots[slot] == 0) return slot;
    }
    const int start = direction < 0 ? kRackPositions : 1;
    for (int slot = start; slot >= 1 && slot <= kRackPositions; slot += direction) {
        if (slots[slot] == 0) return slot;
    }
    return 0;
}

void LayOutOnRack(const TileGroup& group, int target) {
    for (int direction : {-1, 1}) {
        int last = target;
        for (LetterCode letter : direction < 0 ? group.before : group.after) {
            last = FreeSlotBeside(last, direction);
            PutOnFreeSlot(letter, last);
        }
    }
}

void LayOutOnBoard(const TileGroup& group, BoardPosition target) {
    for (int direction : {-1, 1}) {
        BoardPosition at = target;
        for (LetterCode letter : direction < 0 ? group.before : group.after) {
            do {
                at = Stepped(at, group.alongColumn, direction);
            } while (IsOnBoard(at) && !SquareOf(at).IsEmpty());
            if (IsOnBoard(at)) {
                PlaceTile(at, letter);
            } else {
                PutOnFreeSlot(letter, CurrentRack().EmptyPosition());
            }
        }
    }
}

void PutSquaresBack(const std::vector<BoardPosition>& squares, std::string_view letters) {
    for (std::size_t i = 0; i < squares.size(); ++i) {
        if (!IsOnBoard(squares[i]) || !SquareOf(squares[i]).IsEmpty())
            Fatal("Bug: could not find empty square");
        PlaceTile(squares[i], letters[i]);
    }
}

void ThrowGroupBack(const TileGroup& group) {
    std::string letters(group.before.View());
    std::ranges::reverse(letters);
    letters += group.letter;
    letters += group.after.View();
    for (LetterCode letter : letters) ThrowBack(letter);
    RedrawLettersLeft();
}

// Where the carried tile came from becomes empty in the game; on the screen it has been since it was picked
// up.
void EmptyOrigin(const TileGroup& group) {
    if (group.FromRack()) {
        CurrentRack().positions[group.slot] = 0;
    } else {
        SquareOf(group.square).state = SquareState::Empty;
    }
}

// --- The rack makes room ---

void MoveOnRack(int from, int to) {
    const LetterCode letter = CurrentRack().positions[from];
    EmptySlot(from);
    Pause(kStepPause);
    PutOnSlot(to, letter);
    Pause(kStepPause);
}

void InsertByShifting(int target, LetterCode letter) {
    const auto& slots = CurrentRack().positions;
    int left = target;
    while (left >= 1 && slots[left] != 0) --left;
    int right = target;
    while (right <= kRackPositions && slots[right] != 0) ++right;
    const bool hasLeft = left >= 1;
    const bool hasRight = right <= kRackPositions;
    if (!hasLeft && !hasRight) Fatal("Bug: no empty squares?!");
    if (hasLeft && (!hasRight || target - left < right - target)) {
        for (int slot = left + 1; slot <= target; ++slot) MoveOnRack(slot, slot - 1);
    } else {
        for (int slot = right - 1; slot >= target; --slot) MoveOnRack(slot, slot + 1);
    }
    PutOnSlot(target, letter);
}

void SwapOnRack(const TileGroup& group, int target) {
    const LetterCode other = CurrentRack().positions[target];
    EmptySlot(group.slot);
    Pause(kStepPause);
    PutOnSlot(group.slot, other);
    Pause(kStepPause);
    PutOnSlot(target, group.letter);
}

// --- The board makes room ---

struct Scan {
    int newTiles = 0;
    int distance = 0;  // of the nearest empty square; 0 when there is none
};

Scan ScanFrom(BoardPosition target, bool alongColumn, int direction) {
    Scan scan;
    BoardPosition at = target;
    for (int steps = 1;; ++steps) {
        at = Stepped(at, alongColumn, direction);
        if (!IsOnBoard(at) || SquareOf(at).state == SquareState::Frozen) return scan;
        if (SquareOf(at).IsPlaced()) ++scan.newTiles;
        if (SquareOf(at).IsEmpty() && scan.distance == 0) scan.distance = steps;
    }
}

struct Line {
    Scan back;
    Scan forth;
    int NewTiles() const { return back.newTiles + forth.newTiles; }
    bool HasRoom() const { return back.distance != 0 || forth.distance != 0; }
};

int ShiftDirection(const Line& line) {
    if (line.back.distance == 0) return 1;
    if (line.forth.distance == 0) return -1;
    if (line.back.distance != line.forth.distance) return line.back.distance < line.forth.distance ? -1 : 1;
    return line.forth.newTiles < line.back.newTiles ? -1 : 1;
}

void MoveOnBoard(BoardPosition from, BoardPosition to) {
    const LetterCode letter = SquareOf(from).letter;
    RemoveTile(from);
    Pause(kStepPause);
    PlaceTile(to, letter);
    PauseUnlessClicking();
}

// Pushes the tiles from the target on by one square and puts the letter there; false when there is no room.
bool MakeRoom(BoardPosition target, LetterCode letter) {
    const Line row{ScanFrom(target, false, -1), ScanFrom(target, false, 1)};
    const Line column{ScanFrom(target, true, -1), ScanFrom(target, true, 1)};
    if (!row.HasRoom() && !column.HasRoom()) return false;
    const bool alongColumn = !row.HasRoom() || (column.HasRoom() && column.NewTiles() > row.NewTiles());
    const Line& line = alongColumn ? column : row;
    const int direction = ShiftDirection(line);
    for (int steps = direction < 0 ? line.back.distance : line.forth.distance; steps >= 1; --steps) {
        MoveOnBoard(Stepped(target, alongColumn, direction * (steps - 1)),
                    Stepped(target, alongColumn, direction * steps));
    }
    PlaceTile(target, letter);
    return true;
}

// --- Dropping ---

bool AreNeighbours(BoardPosition a, BoardPosition b) {
    return std::abs(a.row - b.row) + std::abs(a.col - b.col) == 1;
}

void DropOnRackSlot(const TileGroup& group, int target) {
    const bool taken = CurrentRack().positions[target] != 0;
    if (group.slot == target) return PutGroupBack(group);
    if (group.FromRack() && taken && std::abs(target - group.slot) == 1) {
        SwapOnRack(group, target);
    } else {
        EmptyOrigin(group);
        if (taken) {
            InsertByShifting(target, group.letter);
        } else {
            PutOnSlot(target, group.letter);
        }
    }
    LayOutOnRack(group, target);
}

void SwapOnBoard(const TileGroup& group, BoardPosition target) {
    const LetterCode other = SquareOf(target).letter;
    RemoveTile(group.square);
    Pause(kStepPause);
    PlaceTile(group.square, other);
    PauseUnlessClicking();
    PlaceTile(target, group.letter);
}

// The tile lands on a new tile that is not its own square.
bool DropOnNewTile(const TileGroup& group, BoardPosition target) {
    if (!group.FromRack() && AreNeighbours(group.square, target)) {
        SwapOnBoard(group, target);
        return true;
    }
    EmptyOrigin(group);  // a square that it leaves is room, too
    return MakeRoom(target, group.letter);
}

void DropOnSquare(const TileGroup& group, BoardPosition target) {
    const Square& square = SquareOf(target);
    const bool onItself = !group.FromRack() && group.square == target;
    if (square.state == SquareState::Frozen) return PutGroupBack(group);
    if (onItself) {
        if (group.alongColumn == group.foundAlongColumn) return PutGroupBack(group);
        PlaceTile(target, group.letter);
    } else if (square.IsEmpty()) {
        EmptyOrigin(group);
        PlaceTile(target, group.letter);
    } else if (!DropOnNewTile(group, target)) {
        return PutGroupBack(group);
    }
    LayOutOnBoard(group, target);
}

}  // namespace

TileGroup PickUpFromRack(int slot, bool wholeRun, bool alongColumn) {
    TileGroup group{
        .letter = CurrentRack().positions[slot], .slot = slot, .alongColumn = wholeRun && alongColumn};
    if (wholeRun) {
        TakeRun(slot, -1, group.before);
        TakeRun(slot, 1, group.after);
    }
    return group;
}

TileGroup PickUpFromBoard(BoardPosition square, bool wholeRun, bool alongColumn) {
    TileGroup group{.letter = SquareOf(square).letter, .square = square, .alongColumn = alongColumn};
    group.foundAlongColumn = alongColumn;
    if (!wholeRun) return group;
    for (bool along : {alongColumn, !alongColumn}) {
        group.beforeSquares = NewTilesFrom(square, along, -1);
        group.afterSquares = NewTilesFrom(square, along, 1);
        group.foundAlongColumn = along;
        if (!group.beforeSquares.empty() || !group.afterSquares.empty()) break;
    }
    TakeAll(group.beforeSquares, group.before);
    TakeAll(group.afterSquares, group.after);
    return group;
}

void EraseOrigins(const TileGroup& group) {
    if (group.FromRack()) {
        const int first = group.slot - static_cast<int>(group.before.size());
        const int last = group.slot + static_cast<int>(group.after.size());
        for (int slot = first; slot <= last; ++slot) EraseRackSlot(slot);
        return;
    }
    DrawSquare(group.square.row, group.square.col);
    for (const auto& squares : {group.beforeSquares, group.afterSquares}) {
        for (const BoardPosition& at : squares) DrawSquare(at.row, at.col);
    }
}

void PutGroupBack(const TileGroup& group) {
    if (!group.FromRack()) {
        PlaceTile(group.square, group.letter);
        PutSquaresBack(group.beforeSquares, group.before);
        PutSquaresBack(group.afterSquares, group.after);
        return;
    }
    PutOnSlot(group.slot, group.letter);
    int slot = group.slot;
    for (LetterCode letter : group.before) PutOnSlot(--slot, letter);
    slot = group.slot;
    for (LetterCode letter : group.after) PutOnSlot(++slot, letter);
}

void DropGroup(const TileGroup& group, const DropTarget& target) {
    if (target.slot != 0) {
        DropOnRackSlot(group, target.slot);
    } else if (target.square) {
        DropOnSquare(group, *target.square);
    } else if (target.overBag) {
        EmptyOrigin(group);
        ThrowGroupBack(group);
    } else {
        PutGroupBack(group);
    }
}

void ThrowBack(LetterCode letter) {
    if (game.thrownBack.size() == kRackSize) Fatal("Bug in PutTileBack!");
    game.thrownBack.Append(letter);
}

void ReturnThrownLetter() {
    const std::size_t last = game.thrownBack.size() - 1;
    const int slot = CurrentRack().EmptyPosition();
    if (slot == 0) Fatal("Bug in RestoreThrownTiles!");
    PutOnSlot(slot, game.thrownBack[last]);
    game.thrownBack.Shorten(last);
    RedrawLettersLeft();
    UpdateScorePreview();
}

void PlaceTile(BoardPosition at, LetterCode letter) {
    Square& square = SquareOf(at);
    square.state = SquareState::Placed;
    square.letter = letter;
    square.blankLetter = 0;
    DrawBoardTile(at.row, at.col, letter);
}

void RemoveTile(BoardPosition at) {
    SquareOf(at).state = SquareState::Empty;
    DrawSquare(at.row, at.col);
}

void PutOnSlot(int slot, LetterCode letter) {
    CurrentRack().positions[slot] = letter;
    DrawRackSlot(game.currentPlayer, slot, letter);
}

void EmptySlot(int slot) {
    CurrentRack().positions[slot] = 0;
    EraseRackSlot(slot);
}

}  // namespace quillet
