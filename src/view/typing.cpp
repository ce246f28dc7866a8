#include "view/typing.h"

#include <optional>

#include "base/messages.h"
#include "base/presentation.h"
#include "game/validation.h"
#include "platform/message_box.h"
#include "view/tile_groups.h"

namespace quillet {
namespace {

constexpr char kBackspace = 8;

bool HumanIsToMove() { return game.IsRunning() && !game.Current().isComputer; }

bool InRow(const Span& extent) { return extent.firstRow == extent.lastRow; }
bool InColumn(const Span& extent) { return extent.firstCol == extent.lastCol; }

bool IsForward(Direction direction) { return direction == Direction::Right || direction == Direction::Down; }
bool IsVertical(Direction direction) { return direction == Direction::Up || direction == Direction::Down; }

// Tiles in one line can only be added to along it: a direction across counts as forwards.
void TurnAlong(bool row) {
    if (row && IsVertical(view.typingDirection)) view.typingDirection = Direction::Right;
    if (!row && !IsVertical(view.typingDirection)) view.typingDirection = Direction::Down;
}

// The first empty square from there on in the typing direction, if the board has one.
std::optional<BoardPosition> EmptySquareAfter(BoardPosition at) {
    const bool vertical = IsVertical(view.typingDirection);
    const int step = IsForward(view.typingDirection) ? 1 : -1;
    do {
        (vertical ? at.row : at.col) = static_cast<std::int16_t>((vertical ? at.row : at.col) + step);
        if (!game.bounds.Contains(at.row, at.col)) return std::nullopt;
    } while (!game.board[at.row][at.col].IsEmpty());
    return at;
}

BoardPosition FirstCorner(const Span& extent) {
    return {static_cast<std::int16_t>(extent.firstRow), static_cast<std::int16_t>(extent.firstCol)};
}

BoardPosition LastCorner(const Span& extent) {
    return {static_cast<std::int16_t>(extent.lastRow), static_cast<std::int16_t>(extent.lastCol)};
}

// The end of the placed line that typing goes on from.
BoardPosition GrowingEnd(const Span& extent) {
    return IsForward(view.typingDirection) ? LastCorner(extent) : FirstCorner(extent);
}

std::optional<BoardPosition> SquareForLetter(const PlacedTiles& placed, Point pointer) {
    if (placed.count == 0) {
        const std::optional<BoardPosition> square = SquareAt(view.layout, pointer);
        return square && game.board[square->row][square->col].IsEmpty() ? square : std::nullopt;
    }
    if (placed.count > 1) TurnAlong(InRow(placed.extent));
    return EmptySquareAfter(GrowingEnd(placed.extent));
}

void TypeLetter(char letter, const PlacedTiles& placed, Point pointer) {
    const Rack& rack = game.Current().rack;
    int slot = rack.PositionOf(letter);
    if (slot == 0) slot = rack.PositionOf(kBlank);
    if (slot == 0) return Beep();
    if (placed.count > 1 && !InRow(placed.extent) && !InColumn(placed.extent)) {
        return Warning("Added letters must be in a straight line.");
    }
    const std::optional<BoardPosition> square = SquareForLetter(placed, pointer);
    if (!square) return Beep();
    const LetterCode tile = rack.positions[slot];
    EmptySlot(slot);
    PlaceTile(*square, tile);
    UpdateScorePreview();
}

BoardPosition LastInReadingOrder() {
    BoardPosition last;
    ForEachSquare([&](BoardPosition at, const Square& square) {
        if (square.IsPlaced()) last = at;
    });
    return last;
}

BoardPosition TileToTakeBack(const PlacedTiles& placed) {
    if (placed.count == 1) return FirstCorner(placed.extent);
    if (!InRow(placed.extent) && !InColumn(placed.extent)) return LastInReadingOrder();
    TurnAlong(InRow(placed.extent));
    return GrowingEnd(placed.extent);
}

void TakeBack(const PlacedTiles& placed) {
    if (placed.count == 0) return;
    const BoardPosition square = TileToTakeBack(placed);
    const LetterCode letter = game.board[square.row][square.col].letter;
    RemoveTile(square);
    const int slot = game.Current().rack.EmptyPosition();
    if (slot == 0) Fatal("Bug in RestoreOneTile!");
    PutOnSlot(slot, letter);
    UpdateScorePreview();
}

}  // namespace

void TypeCharacter(char character, Point pointer) {
    if (!HumanIsToMove()) return;
    const char letter = ToUpper(character);
    if (character == kBackspace) {
        TakeBack(CollectPlacedTiles());
    } else if (IsLetter(letter)) {
        TypeLetter(letter, CollectPlacedTiles(), pointer);
    }
}

void TypeArrow(Direction direction) {
    if (!HumanIsToMove()) return;
    if (CollectPlacedTiles().count > 1) return Beep();
    view.typingDirection = direction;
}

}  // namespace quillet
