#include "play/history.h"

#include <cassert>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/messages.h"
#include "base/presentation.h"
#include "computer/move_choice.h"
#include "game/bag.h"
#include "game/consistency.h"
#include "game/validation.h"
#include "play/end_of_game.h"
#include "play/turns.h"
#include "store/preferences.h"

namespace quillet {
namespace {

constexpr std::string_view kPass = "{}";

bool IsExchange(const MoveRecord& record) {
    return record.numTiles == 0 && record.letters.View().starts_with('{');
}

std::string_view ThrownCodes(const MoveRecord& record) {
    return record.letters.View().substr(1, record.letters.size() - 2);
}

void TakeFromRack(LetterCode code, std::string_view failure) {
    Rack& rack = game.Current().rack;
    const int position = rack.PositionOf(code);
    if (position == 0) Fatal(failure);
    rack.positions[position] = 0;
    --rack.numtiles;
}

void PutOnRack(LetterCode code, std::string_view failure) {
    Rack& rack = game.Current().rack;
    const int position = rack.EmptyPosition();
    if (position == 0 || position > kRackSize) Fatal(failure);
    rack.positions[position] = code;
    ++rack.numtiles;
}

bool AllowsHints(std::string_view action) {
    if (preferences.allowHints) return true;
    Warning(action, " is only allowed after you tick the \"Allow Hints\" option.");
    return false;
}

// --- Undo ---

// Reverses the final adjustments. A penalty was taken only when the timer was on at the end; whether it is
// on now does not matter.
void TakeBackEnd() {
    game.gameOver = false;
    for (int p = 1; p <= game.numPlayers; ++p) {
        Player& player = game.players[p];
        player.score += player.overtimePenalty - player.lettersAdjustment;
        player.overtimePenalty = 0;
        player.lettersAdjustment = 0;
    }
}

void TakeBackPlacement(const MoveRecord& record) {
    for (int i = 1; i <= record.numTiles; ++i) {
        Square& square = game.board[record.coords[i].row][record.coords[i].col];
        if (square.state != SquareState::Frozen) Fatal("Bug: square should be frozen");
        square.state = SquareState::Empty;
        PutOnRack(square.letter, "Bug: rack is full");
    }
}

void TakeBackExchange(const MoveRecord& record) {
    for (LetterCode code : ThrownCodes(record)) {
        PutOnRack(code, "Bug: rack full");
        RemoveFromBag(code);
    }
    if (game.Current().rack.numtiles != kRackSize) Fatal("Bug: numtiles <> 7");
}

void TakeBackTiles(const MoveRecord& record) {
    for (LetterCode code : record.newLetters) {
        TakeFromRack(code, "Bug: new tile not in rack");
        AddToBag(code);
    }
    if (IsExchange(record)) {
        TakeBackExchange(record);
    } else {
        TakeBackPlacement(record);
    }
}

// The mover's time before the last move: that of its move one round earlier.
std::int32_t TimeBeforeLastMove() {
    const int earlier = game.history.movesCount - game.numPlayers;
    return earlier > 0 ? game.history.records[earlier].time : 0;
}

void TakeBackMove() {
    RestoreTiles();
    const MoveRecord& record = game.history.Last();
    game.currentPlayer = record.player;
    if (game.gameOver) TakeBackEnd();
    Player& player = game.Current();
    player.timeUsed = TimeBeforeLastMove();
    --player.turns;
    player.score -= record.score;
    if (record.letters != kPass) {
        TakeBackTiles(record);
    } else if (game.passCount > 0) {
        --game.passCount;
    }
    --game.history.movesCount;
    ++game.history.redoCount;
    assert(IsConsistent(game));
}

// --- Redo and replay ---

void ReplayPlacement(const MoveRecord& record) {
    std::string_view letters = record.letters;
    for (int i = 1; i <= record.numTiles; ++i) {
        const BoardPosition at = record.coords[i];
        if (!game.bounds.Contains(at.row, at.col)) Fatal("Bug: bad board pos");
        Square& square = game.board[at.row][at.col];
        if (!square.IsEmpty()) Fatal("Bug: square should be empty");
        square.state = SquareState::Frozen;
        square.letter = letters.front();
        letters.remove_prefix(1);
        if (square.letter == kBlank) {
            square.blankLetter = letters.front();
            letters.remove_prefix(1);
        }
        TakeFromRack(square.letter, "Bug: tile not found");
    }
}

void ReplayExchange(const MoveRecord& record) {
    for (LetterCode code : ThrownCodes(record)) {
        TakeFromRack(code, "Bug: tile not in rack");
        AddToBag(code);
    }
}

// After replayed moves: the next player's turn, or the winner.
void GoOn() {
    if (game.gameOver) {
        RedrawPanels();
        ShowWinner();
    } else {
        game.currentPlayer = game.NextInTurn();
        StartTurn();
    }
    assert(IsConsistent(game));
}

void PlayAgain() {
    RestoreTiles();
    IncrementMoveCount(false);
    --game.history.redoCount;
    ReplayMove(game.history.movesCount);
    CheckEndOfGame();
}

// --- The list of moves ---

constexpr std::size_t kMarkColumn = 4;
constexpr std::size_t kLettersColumn = 6;
constexpr std::size_t kScoreEnd = 28;
constexpr std::size_t kMinutesEnd = 37;
constexpr std::size_t kTimeEnd = 40;

// Puts the text where its first, or its last, character stands in that column.
void PutAt(std::string& line, std::size_t column, std::string_view text) {
    line.resize(column, ' ');
    line += text;
}
void PutEndingAt(std::string& line, std::size_t column, std::string_view text) {
    PutAt(line, column - text.size(), text);
}

bool HasClosingLine() { return game.gameOver || game.history.redoCount > 0; }

std::string LettersText(const MoveRecord& record) {
    if (record.letters == kPass) return "passed";
    std::string text;
    if (IsExchange(record)) {
        text = "replaced ";
        for (LetterCode code : ThrownCodes(record)) text += code == kBlank ? '?' : code;
        return text;
    }
    for (std::size_t i = 0; i < record.letters.size(); ++i) {
        const bool isBlank = record.letters[i] == kBlank;
        text += isBlank ? '(' : record.letters[i];
        if (isBlank) {
            text += record.letters[++i];
            text += ')';
        }
    }
    return text;
}

void PutTimeLeft(std::string& line, const MoveRecord& record) {
    const std::int64_t left = std::int64_t{game.timeLimit} * 60 - record.time;
    const std::int64_t seconds = std::abs(left) % 60;
    PutEndingAt(line, kMinutesEnd, (left < 0 ? "+" : "") + std::to_string(std::abs(left) / 60));
    line += (seconds < 10 ? ":0" : ":") + std::to_string(seconds);
}

std::string RecordLine(int n) {
    const MoveRecord& record = game.history.records[n];
    std::string line = std::to_string(n);
    if (n > game.history.movesCount) {
        const char mark = n == game.history.movesCount + 1 ? kNextMark : '+';
        PutAt(line, kMarkColumn, std::string_view(&mark, 1));
    }
    PutAt(line, kLettersColumn, LettersText(record));
    PutEndingAt(line, kScoreEnd, std::to_string(record.score));
    if (preferences.timerEnabled) PutTimeLeft(line, record);
    return line;
}

std::string ClosingLine(const Player& player) {
    std::string line;
    if (!game.gameOver) {
        PutAt(line, kLettersColumn, "Redo all moves.");
        return line;
    }
    PutAt(line, kLettersColumn, "End of game.");
    const std::int32_t adjustment = player.lettersAdjustment;
    PutEndingAt(line, kScoreEnd, (adjustment > 0 ? "+" : "") + std::to_string(adjustment));
    if (preferences.timerEnabled && player.overtimePenalty > 0) {
        PutEndingAt(line, kTimeEnd, "-" + std::to_string(player.overtimePenalty));
    }
    return line;
}

}  // namespace

void UndoMove() {
    if (game.history.movesCount == 0 || !AllowsHints("Undo")) return;
    TakeBackMove();
    StartTurn();
    RedrawWindow();
}

void RedoMove() {
    if (game.gameOver || game.history.redoCount == 0 || !AllowsHints("Redo")) return;
    PlayAgain();
    GoOn();
    RedrawWindow();
}

void GoToMove(int t) {
    const MoveHistory& history = game.history;
    assert(t >= 1 && t <= history.movesCount + history.redoCount + 1);
    if (!AllowsHints("Undo/redo") || t == history.movesCount + 1) return;
    ShowWaitCursor();
    if (t <= history.movesCount) {
        while (t <= history.movesCount) TakeBackMove();
        StartTurn();
        MakeComputerWait();
    } else {
        // A saved game may go on after moves that end a game; replaying stops at such an end.
        while (t > history.movesCount + 1 && history.redoCount > 0 && !game.gameOver) PlayAgain();
        GoOn();
        if (history.redoCount > 0 && !game.gameOver) MakeComputerWait();
    }
    ShowArrowCursor();
    RedrawWindow();
}

void MakeComputerWait() {
    if (!game.Current().isComputer || preferences.tellComputerToMove) return;
    FlipPreference(&Preferences::tellComputerToMove);
}

void ReplayMove(int n) {
    const MoveRecord& record = game.history.records[n];
    game.currentPlayer = record.player;
    Player& player = game.Current();
    player.timeUsed = record.time;
    ++player.turns;
    player.score += record.score;
    if (record.letters == kPass) {
        if (game.passCount < game.numPlayers) ++game.passCount;
        return;
    }
    game.passCount = 0;
    if (IsExchange(record)) {
        ReplayExchange(record);
    } else {
        ReplayPlacement(record);
    }
    for (LetterCode code : record.newLetters) {
        PutOnRack(code, "Bug: rack full");
        RemoveFromBag(code);
    }
}

void OpenGameReplay() {
    game.gameStarted = true;
    game.gameOver = false;
    game.thrownBack.Clear();
    game.history.redoCount = 0;
    game.passCount = 0;
    formedWords = {};
    game.timeLimit = preferences.timeLimit;
    game.timePenalty = preferences.timePenalty;
    ClearStatusLines(1);
    game.turnStart = 0;
    game.turnSeconds = 0;
    ResetExchangeCounts();
    if (game.history.movesCount == 0) {
        StartTurn();
    } else {
        for (int n = 1; n <= game.history.movesCount; ++n) ReplayMove(n);
        CheckEndOfGame();
        GoOn();
    }
    RedrawWindow();
}

int HistoryLineCount(int player) {
    int lines = HasClosingLine() ? 1 : 0;
    for (int n = 1; n <= game.history.movesCount + game.history.redoCount; ++n) {
        lines += game.history.records[n].player == player;
    }
    return lines;
}

int HistoryRecord(int player, int line) {
    const int count = game.history.movesCount + game.history.redoCount;
    int n = 1;
    for (int before = line; n <= count; ++n) {
        if (game.history.records[n].player == player && --before == 0) break;
    }
    return n;
}

std::string HistoryLine(int player, int line) {
    const int n = HistoryRecord(player, line);
    const bool isRecord = n <= game.history.movesCount + game.history.redoCount;
    return isRecord ? RecordLine(n) : ClosingLine(game.players[player]);
}

}  // namespace quillet
