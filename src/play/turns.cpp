#include "play/turns.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <string>
#include <vector>

#include "base/idle_pump.h"
#include "base/messages.h"
#include "base/presentation.h"
#include "computer/move_choice.h"
#include "computer/opponents.h"
#include "data/statistics.h"
#include "game/bag.h"
#include "game/consistency.h"
#include "game/validation.h"
#include "play/announcements.h"
#include "play/clock.h"
#include "play/end_of_game.h"
#include "store/preferences.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

// Every move costs at least a second, also without a timer.
void AddTurnTime(MoveRecord& record) {
    Player& player = game.Current();
    player.timeUsed += std::max(game.turnSeconds, 1);
    record.time = player.timeUsed;
    game.turnStart = 0;
    game.turnSeconds = 0;
}

// Counts the move and gives its record, empty but for who moved and when.
MoveRecord& BeginRecord() {
    IncrementMoveCount(true);
    game.history.redoCount = 0;
    MoveRecord& record = game.history.Last();
    record = {};
    record.player = game.currentPlayer;
    AddTurnTime(record);
    return record;
}

std::int32_t PointsOf(int score) { return std::clamp(score, -kMostMovePoints, kMostMovePoints); }

Text<12> InBraces(std::string_view codes) {
    Text<12> text("{");
    text.Append(codes);
    text.Append('}');
    return text;
}

// The Placed squares of the rectangle become tiles for good and enter the record, in board order.
std::vector<BoardPosition> FreezePlacedTiles(const Span& extent, MoveRecord& record, bool isComputer) {
    std::vector<BoardPosition> frozen;
    for (int row = extent.firstRow; row <= extent.lastRow; ++row) {
        for (int col = extent.firstCol; col <= extent.lastCol; ++col) {
            Square& square = game.board[row][col];
            if (!square.IsPlaced()) continue;
            square.state = SquareState::Frozen;
            record.letters.Append(square.letter);
            if (square.letter == kBlank) record.letters.Append(square.blankLetter);
            const BoardPosition at{static_cast<std::int16_t>(row), static_cast<std::int16_t>(col)};
            record.coords[++record.numTiles] = at;
            frozen.push_back(at);
            if (isComputer) DrawBoardTile(row, col, square.letter);
            if (square.letter == kBlank) DrawPlayedBlank(row, col);
        }
    }
    return frozen;
}

// Draws a tile for each of these positions of the current player's rack, and writes down which.
void DrawNewLetters(std::span<const int> positions) {
    DrawToPositions(positions, game.currentPlayer);
    for (int position : positions) {
        game.history.Last().newLetters.Append(game.Current().rack.positions[position]);
    }
}

void RefillRack() {
    Rack& rack = game.Current().rack;
    std::vector<int> positions;
    int tilesLeft = game.bag.tilesleft;
    for (int position = 1; position <= kRackPositions; ++position) {
        if (rack.positions[position] != 0 || tilesLeft == 0 || rack.numtiles == kRackSize) continue;
        positions.push_back(position);
        ++rack.numtiles;
        --tilesLeft;
    }
    DrawNewLetters(positions);
}

void ReturnToBag(std::string_view codes) {
    for (LetterCode code : codes) AddToBag(code);
}

// The tile on it is taken up again.
void EmptySquare(BoardPosition at) {
    game.board[at.row][at.col].state = SquareState::Empty;
    DrawSquare(at.row, at.col);
}

// The end after a human's move.
void EndGame() {
    game.gameOver = true;
    ++game.Current().turns;
    FinalAdjust();
    RedrawAfterMove(game.currentPlayer);
    RedrawPanels();
    ShowWinner();
    if (preferences.saveStatistics) RecordGameStatistics();
    PlayEndSound();
}

void PassTurnOn() {
    const int mover = game.currentPlayer;
    game.currentPlayer = game.NextInTurn();
    StartTurn();
    RedrawAfterMove(mover);
}

void NextPlayer() {
    ++game.Current().turns;
    PassTurnOn();
}

void EndGameOrNextPlayer(bool ends) {
    if (ends || game.history.movesCount == kMaxMoves) {
        EndGame();
    } else {
        NextPlayer();
    }
    assert(IsConsistent(game));
}

void PassTurn() {
    const bool asks = game.Current().turns == 0 && game.bag.tilesleft >= kRackSize;
    if (asks && !AskYesNo(false, "Are you sure you want to pass rather than throw back letters?")) return;
    BeginRecord().letters = InBraces({});
    ++game.passCount;
    EndGameOrNextPlayer(game.passCount == game.numPlayers);
}

// Draws for these positions of the rack, and only then returns the tiles thrown back to the bag.
void ExchangeThrownBack(std::span<const int> positions) {
    game.passCount = 0;
    DrawNewLetters(positions);
    ReturnToBag(game.thrownBack);
    game.thrownBack.Clear();
    EndGameOrNextPlayer(false);
}

void ReplaceThrownTiles() {
    BeginRecord().letters = InBraces(game.thrownBack);
    const Rack& rack = game.Current().rack;
    std::vector<int> positions;
    for (int position = 1; position <= kRackPositions && positions.size() < game.thrownBack.size();
         ++position) {
        if (rack.positions[position] == 0) positions.push_back(position);
    }
    if (positions.size() < game.thrownBack.size()) Fatal("Bug in ReplaceThrownTiles!");
    ExchangeThrownBack(positions);
}

void RecordPlacement(const PlacedTiles& placed, int score) {
    MoveRecord& record = BeginRecord();
    Player& player = game.Current();
    record.score = PointsOf(score);
    player.score += record.score;
    game.passCount = 0;
    FreezePlacedTiles(placed.extent, record, false);
    ShowBingoBonus(placed.count);
    player.rack.numtiles = static_cast<std::uint16_t>(player.rack.numtiles - placed.count);
    const bool wentOut = player.rack.numtiles == 0 && game.bag.tilesleft == 0;
    if (!wentOut && game.history.movesCount < kMaxMoves) RefillRack();
    EndGameOrNextPlayer(wentOut);
}

void FinishHumanTurn() {
    const PlacedTiles placed = CollectPlacedTiles();
    if (!game.thrownBack.empty()) {
        if (placed.count == 0) {
            ReplaceThrownTiles();
        } else {
            Warning("Some letters have been thrown back ", "and some are on the board.");
        }
        return;
    }
    if (placed.count == 0) {
        PassTurn();
        return;
    }
    if (!ValidatePlacement(placed.extent)) return;
    const int score = ScoreMove(true, placed);
    if (CheckFormedWords()) RecordPlacement(placed, score);
}

// Chooses a computer's move, with its own word list where it has one.
ChosenMove FindComputerMove() {
    const Player& player = game.Current();
    const Text<kRackPositions> codes = player.rack.Codes();
    const Opponent& opponent = opponentTable.entries[static_cast<std::size_t>(player.opponent)];
    WordListName previous;
    const bool switched = UseOpponentWordList(opponent.lexicon, previous);
    if (switched) ShowWaitCursor();  // again: loading a list ends with the arrow
    const ChosenMove move = FindMove(player.skill, codes.View().substr(0, kRackSize));
    if (switched) {
        RestoreWordList(previous);
        ShowWaitCursor();
    }
    return move;
}

// Takes the letters used from the rack; false when one is not there.
bool TakeFromRack(Rack& rack, std::string_view letters) {
    for (LetterCode code : letters) {
        const int position = rack.PositionOf(code);
        if (position == 0) return false;
        rack.positions[position] = 0;
        --rack.numtiles;
    }
    return true;
}

// Plays out what the computer chose; false when a new game had to replace the game.
bool RecordComputerMove(const ChosenMove& move) {
    MoveRecord& record = BeginRecord();
    if (move.usedLetters.empty()) {
        record.letters = InBraces({});
        ShowPassOrThrow({});
        ++game.passCount;
        return true;
    }
    game.passCount = 0;
    record.score = PointsOf(move.score);
    if (!TakeFromRack(game.Current().rack, move.usedLetters)) {
        Warning("Bug - used tile not in rack!");
        NewGame(false);
        return false;
    }
    RedrawRack();
    const PlacedTiles placed = CollectPlacedTiles();
    if (placed.count == 0) {
        formedWords = {};
        record.letters = InBraces(move.usedLetters);
        ShowPassOrThrow(move.usedLetters);
        RefillRack();
        ReturnToBag(move.usedLetters);
        return true;
    }
    ScoreMove(true, placed);
    const std::vector<BoardPosition> squares = FreezePlacedTiles(placed.extent, record, true);
    if (preferences.blinkComputerMoves) FlashSquares(squares);
    ShowBingoBonus(placed.count);
    RefillRack();
    return true;
}

// What follows a computer's move that ended the game: statistics, and in a game that plays on by itself
// the next game when the user watches the statistics.
void FinishComputerGame() {
    if (!preferences.saveStatistics) return;
    RecordGameStatistics();
    if (PlaysOnAlone() && PointerIsOverStatistics()) {
        ReadPlayerSetUp();
        LoadOpponentData();
        BeginGame(true);
    }
}

// One computer move with all that follows from it; false when the game was replaced.
bool PlayComputerMove() {
    game.turnStart = SecondsNow();
    game.turnSeconds = 0;
    const ChosenMove move = FindComputerMove();
    game.bonusWordsThisMove = move.bonusCount;
    if (!RecordComputerMove(move)) return false;
    Player& player = game.Current();
    player.score += game.history.Last().score;
    ++player.turns;
    CheckEndOfGame();
    assert(IsConsistent(game));
    if (game.gameOver) {
        RedrawAfterMove(game.currentPlayer);
        RedrawPanels();
        ShowWinner();
        FinishComputerGame();
    } else {
        PassTurnOn();
    }
    return true;
}

}  // namespace

void StartTurn() {
    const Player& player = game.Current();
    ClearStatusLines(1);
    if (player.isComputer) {
        SetStatusLine(1, player.name);
        game.turnStart = 0;
    } else {
        SetStatusLine(1, "Your move " + std::string(player.name.View()) + ".");
        if (player.turns == 0) {
            SetStatusLine(2, "Click on DONE after");
            SetStatusLine(3, "moving your letters.");
        }
        game.turnStart = SecondsNow();
    }
    game.turnSeconds = 0;
    ResetBlink();
    RefreshForTurn();
}

void IncrementMoveCount(bool withMessage) {
    if (game.history.movesCount < kMaxMoves) ++game.history.movesCount;
    if (game.history.movesCount < kMaxMoves) return;
    if (withMessage) Warning("Too many moves!  Sorry, but we'll have to end this game.");
    game.gameOver = true;
}

void FinishTurn() {
    pump.abortRequested = false;
    if (game.gameOver) {
        if (game.numPlayers > 1) game.currentPlayer = game.NextInTurn();
        RedrawWindow();
    } else if (game.Current().isComputer) {
        ComputerTurn();
    } else {
        FinishHumanTurn();
    }
}

void ComputerTurn() {
    ShowWaitCursor();
    while (PlayComputerMove()) {
        if (pump.abortRequested && PlaysOnAlone()) FlipPreference(&Preferences::tellComputerToMove);
        if (pump.abortRequested || !PlaysOnAlone() || game.gameOver) break;
    }
    ShowArrowCursor();
    RedrawWindow();
    if (game.gameOver) PlayEndSound();
}

void ThrowAllBack() {
    if (!game.IsRunning() || game.Current().isComputer) return;
    if (game.bag.tilesleft < kRackSize) {
        Warning("Must be at least 7 letters left.");
        return;
    }
    Rack& rack = game.Current().rack;
    for (LetterCode& code : rack.positions) {
        if (code == 0) continue;
        game.thrownBack.Append(code);
        code = 0;
    }
    ForEachSquare([](BoardPosition at, const Square& square) {
        if (!square.IsPlaced()) return;
        game.thrownBack.Append(square.letter);
        EmptySquare(at);
    });
    BeginRecord().letters = InBraces(game.thrownBack);
    static constexpr std::array kWholeRack{1, 2, 3, 4, 5, 6, 7};
    ExchangeThrownBack(kWholeRack);
}

void RestoreTiles() {
    if (!game.IsRunning()) return;
    Rack& rack = game.Current().rack;
    bool moved = false;
    const auto putOnRack = [&](LetterCode code, std::string_view failure) {
        const int position = rack.EmptyPosition();
        if (position == 0) Fatal(failure);
        rack.positions[position] = code;
        moved = true;
    };
    ForEachSquare([&](BoardPosition at, const Square& square) {
        if (!square.IsPlaced()) return;
        EmptySquare(at);
        putOnRack(square.letter, "Bug in RestoreTiles!");
    });
    for (LetterCode code : game.thrownBack) putOnRack(code, "Bug in RestoreThrownTiles!");
    game.thrownBack.Clear();
    if (!moved) return;
    RedrawRack();
    RedrawLettersLeft();
    UpdateScorePreview();
}

void NewGame(bool redraw) {
    const bool nobodyChosen = game.numPlayers == 1 && game.players[1].name == "?";
    if (nobodyChosen && !ChoosePlayers()) return;
    ReadPlayerSetUp();
    LoadOpponentData();
    BeginGame(redraw);
}

void BeginGame(bool redraw) {
    for (int p = 1; p <= game.numPlayers; ++p) game.players[p].rack = {};
    game.currentPlayer = 1;
    FillBag();
    ClearTiles();
    game.dealOnSetUp = true;
    SetUpGame();
    game.gameOver = false;
    game.gameStarted = true;
    game.thrownBack.Clear();
    game.history.movesCount = 0;
    game.history.redoCount = 0;
    game.passCount = 0;
    formedWords = {};
    game.timeLimit = preferences.timeLimit;
    game.timePenalty = preferences.timePenalty;
    ResetExchangeCounts();
    StartTurn();
    if (redraw) RedrawWindow();
}

}  // namespace quillet
