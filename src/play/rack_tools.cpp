#include "play/rack_tools.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/messages.h"
#include "base/presentation.h"
#include "computer/move_choice.h"
#include "game/bag.h"
#include "game/validation.h"
#include "platform/message_box.h"
#include "play/announcements.h"
#include "play/turns.h"
#include "store/preferences.h"

namespace quillet {
namespace {

void StartMixSound() {
    if (preferences.playMixPermute) StartSoundFile(true, "mix.wav");
}

// The codes take the first positions, in their order.
void FillRack(Rack& rack, std::string_view codes) {
    rack.positions = {};
    std::ranges::copy(codes, rack.positions.begin());
}

// The element of 1..size that a random number picks.
template <typename T>
T& RandomOf(std::vector<T>& list) {
    return list[static_cast<std::size_t>(Rand(1, static_cast<int>(list.size()))) - 1];
}

bool TakeFromRack(Rack& rack, LetterCode code) {
    const int position = rack.PositionOf(code);
    if (position == 0) return false;
    rack.positions[position] = 0;
    return true;
}

void ShowHintedPlacement(const PlacedTiles& placed) {
    std::vector<BoardPosition> squares;
    ForEachSquare([&](BoardPosition at, const Square& square) {
        if (!square.IsPlaced()) return;
        DrawBoardTile(at.row, at.col, square.letter);
        squares.push_back(at);
    });
    if (preferences.blinkComputerMoves) FlashSquares(squares);
    ScoreMove(true, placed);
}

void ShowHintedExchange(std::string_view codes) {
    game.thrownBack = codes;
    RedrawLettersLeft();
    if (preferences.blinkComputerMoves) FlashLettersLeft();
    ShowHintToPassOrThrow(codes);
}

// The move is the player's to finish: its tiles, if any, stand on the board already.
void ShowHintedMove(const ChosenMove& move) {
    Rack& rack = game.Current().rack;
    for (LetterCode code : move.usedLetters) {
        if (TakeFromRack(rack, code)) continue;
        Warning("Bug - used tile not in rack!");
        NewGame(true);
        return;
    }
    RedrawRack();
    const PlacedTiles placed = CollectPlacedTiles();
    if (move.usedLetters.empty()) {
        ShowHintToPassOrThrow({});
    } else if (placed.count == 0) {
        ShowHintedExchange(move.usedLetters);
    } else {
        ShowHintedPlacement(placed);
    }
    ClearStatusLines();
    SetStatusLine(2, "Score = " + std::to_string(move.score));
}

bool ReplaceFirst(Text<kRackSize>& letters, LetterCode from, LetterCode to) {
    for (std::size_t i = 0; i < letters.size(); ++i) {
        if (letters[i] != from) continue;
        letters[i] = to;
        return true;
    }
    return false;
}

// The current player's latest draw of one letter becomes that of another.
void RewriteDraw(LetterCode from, LetterCode to) {
    for (int n = game.history.movesCount + 1 - game.numPlayers; n >= 1; n -= game.numPlayers) {
        if (ReplaceFirst(game.history.records[n].newLetters, from, to)) return;
    }
    if (!ReplaceFirst(game.startRacks[game.currentPlayer], from, to)) Fatal("Bug: rackch not found");
}

}  // namespace

void MixRack() {
    Rack& rack = game.Current().rack;
    std::vector<int> full;
    std::vector<int> empty;
    for (int position = 1; position <= kRackPositions; ++position) {
        (rack.positions[position] != 0 ? full : empty).push_back(position);
    }
    if (game.gameOver || full.empty()) {
        Beep();
        return;
    }
    StartMixSound();
    for (std::size_t moves = full.size() * full.size(); moves > 0; --moves) {
        int& from = RandomOf(full);
        int& to = RandomOf(empty);
        std::swap(rack.positions[from], rack.positions[to]);
        std::swap(from, to);
    }
    FillRack(rack, rack.Codes());
    RedrawRack();
}

void Permute() {
    if (game.gameOver) return;
    Rack& rack = game.Current().rack;
    std::string codes(rack.Codes());
    if (codes.empty()) {
        Beep();
        return;
    }
    StartMixSound();
    std::ranges::next_permutation(codes);
    FillRack(rack, codes);
    RedrawRack();
}

void ShowHint(int level) {
    if (!game.IsRunning() || game.Current().isComputer) return;
    if (!preferences.allowHints) {
        Warning("Help is only allowed after you tick the \"Allow Hints\" option.");
        return;
    }
    ShowWaitCursor();
    RestoreTiles();
    const Text<kRackPositions> codes = game.Current().rack.Codes();
    const ChosenMove move = FindMove(level, codes);
    game.bonusWordsThisMove = move.bonusCount;
    ShowHintedMove(move);
    ShowArrowCursor();
}

void SwapWithBag(int position, LetterCode bagLetter) {
    LetterCode& onRack = game.Current().rack.positions[position];
    RewriteDraw(onRack, bagLetter);
    game.history.redoCount = 0;
    RemoveFromBag(bagLetter);
    AddToBag(onRack);
    onRack = bagLetter;
}

}  // namespace quillet
