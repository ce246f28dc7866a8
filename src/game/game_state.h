// The model of the one game in memory: settings, board, racks, players, bag, moves and where the game
// stands. Plain data with fixed-size arrays; nothing is allocated per move.
//
// Owns game. Written by the rules (game/, play/), by what fills its settings (data/) and by the hand on the
// tiles (view/tile_interaction), which moves tiles between racks, Placed squares and thrownBack. The model
// checks nothing; see game/consistency.h.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/board_position.h"
#include "base/one_based.h"
#include "base/text.h"
#include "game/board.h"
#include "game/letters.h"

namespace quillet {

constexpr int kMaxPlayers = 4;
constexpr int kRackSize = 7;       // tiles a rack can hold
constexpr int kRackPositions = 8;  // places on it, so that one is always free
constexpr int kMaxMoves = 200;
constexpr int kMaxTiles = 200;
constexpr int kMinTiles = 28;
constexpr int kMaxBlanks = 5;
constexpr int kStatusLines = 6;
// What one move counts at most, gained or lost: then no sum of a game leaves its range, whatever a scenario's
// files say the letters are worth. Only a row of fivefold words could come to more.
constexpr std::int32_t kMostMovePoints = 5'000'000;

// Positions 1..8, each 0 (empty) or a code. A letter is taken from the lowest position holding it; a tile
// goes to the lowest empty position.
struct Rack {
    OneBased<LetterCode, kRackPositions> positions;
    std::uint16_t numtiles = 0;  // 0..7

    // The lowest position holding that code, 0 for an empty one; 0 when there is none.
    int PositionOf(LetterCode code) const;
    int EmptyPosition() const { return PositionOf(0); }
    // The codes of the rack in position order.
    Text<kRackPositions> Codes() const;
};

using PlayerName = Text<12>;

struct Player {
    PlayerName name;  // a name that ends in a digit is a computer's
    bool isComputer = false;
    std::uint16_t skill = 0;  // 0 novice .. 9 expert
    std::int32_t score = 0;
    std::int32_t timeUsed = 0;  // seconds, in this game
    std::uint16_t turns = 0;    // moves, passes and exchanges in this game
    Rack rack;
    std::int32_t opponent = 0;  // 1..20: whose character a computer player is; 0 none

    // Points that the end of the game took or gave; kept for the history and for undoing the end.
    std::int32_t lettersAdjustment = 0;
    std::int32_t overtimePenalty = 0;
};

struct MoveRecord {
    std::uint16_t player = 0;  // 1..4
    // A placement: the placed codes in board order (rows from the top, within a row from the left), a
    // blank as "[" and its letter. A pass: "{}". An exchange: "{", the thrown codes, "}".
    Text<12> letters;
    OneBased<BoardPosition, kRackSize> coords;  // of the placed tiles, in the order of `letters`
    std::uint16_t numTiles = 0;                 // placed tiles
    Text<kRackSize> newLetters;                 // drawn after the move, in drawing order
    std::int32_t score = 0;
    std::int32_t time = 0;  // seconds: the mover's timeUsed after the move
};

// Records 1..movesCount were played; the redoCount records after them were undone.
struct MoveHistory {
    OneBased<MoveRecord, kMaxMoves> records;
    int movesCount = 0;
    int redoCount = 0;

    MoveRecord& Last() { return records[movesCount]; }
};

// The tiles neither on a rack nor on the board, in positions 1..tilesleft in no meaningful order.
struct Bag {
    OneBased<LetterCode, kMaxTiles> tiles;
    std::uint16_t tilesleft = 0;
    std::uint16_t totaltiles = 0;  // of a full bag
};

// What a scenario, or a saved game, decides.
struct GameSettings {
    LetterValues letterValues;
    LetterCounts letterCounts;
    std::int32_t sevenLetterBonus = 50;  // 0..999
    std::int16_t boardRows = kBoardSize;
    std::int16_t boardCols = kBoardSize;
    std::int16_t startRow = 8;  // the square that the first move must cover
    std::int16_t startCol = 8;
    std::int16_t bonusWordValue = 0;
    bool bonusWordsEnabled = false;
};

using StatusLine = Text<31>;

struct GameState {
    GameSettings settings;
    Board board{};
    BoardBounds bounds;
    Bag bag;
    MoveHistory history;

    std::uint16_t numPlayers = 1;  // 1..4
    std::uint16_t currentPlayer = 1;
    OneBased<Player, kMaxPlayers> players;
    OneBased<Text<kRackSize>, kMaxPlayers> startRacks;  // as drawn at the start of the game

    std::uint16_t passCount = 0;  // passes in a row; the game ends when it reaches numPlayers
    Text<kRackSize> thrownBack;   // put aside for exchange by the player to move
    std::uint8_t bonusWordsThisMove = 0;

    bool gameStarted = false;  // a game was started or opened since the program began
    bool gameOver = true;
    bool dealOnSetUp = true;    // SetUpGame deals new racks, rather than taking startRacks
    std::uint16_t winner = 0;   // once over: the single player with the best score; 0 for a tie
    bool editorActive = false;  // the board editor is open, and the game stands still

    // The game clock.
    std::uint32_t turnStart = 0;   // tick count in whole seconds at which the turn began; 0 not timed
    std::int32_t turnSeconds = 0;  // seconds of this turn as last measured
    std::int32_t timeLimit = 25;   // minutes for each player
    std::int32_t timePenalty = 10;

    OneBased<StatusLine, kStatusLines> statusLines;

    Player& Current() { return players[currentPlayer]; }
    // The player after the current one.
    std::uint16_t NextInTurn() const {
        return currentPlayer < numPlayers ? static_cast<std::uint16_t>(currentPlayer + 1) : std::uint16_t{1};
    }
    bool StartSquareIsEmpty() const { return board[settings.startRow][settings.startCol].IsEmpty(); }
    bool IsRunning() const { return gameStarted && !gameOver; }
};

inline GameState game;

// The model as it is when the program starts: default letters on a plain board, no game yet, and the
// status lines that ask for one.
GameState FreshGameState();

// Derives the bounds from boardRows and boardCols; to be called whenever these change.
void ComputeBounds();

// Every playable square becomes empty; blocked squares stay as they are.
void ClearTiles();

// Sets the whole board from a squares text: 225 characters, row by row. What a short text lacks is plain.
void LoadSquares(std::string_view squares);

// The board's kinds as such a text.
std::string SquaresText();

// The players' names joined by " vs ", cut at 31 characters.
Text<31> MatchName();

bool AllComputers();

// Calls visit(position, square) for every square within the bounds, row by row and left to right.
template <typename Visit>
void ForEachSquare(Visit visit) {
    for (int row = game.bounds.firstRow; row <= game.bounds.lastRow; ++row) {
        for (int col = game.bounds.firstCol; col <= game.bounds.lastCol; ++col) {
            visit(BoardPosition{static_cast<std::int16_t>(row), static_cast<std::int16_t>(col)},
                  game.board[row][col]);
        }
    }
}

// Replaces status line k (1..6) in the game and on the screen.
void SetStatusLine(int k, std::string_view text);

// Empties status lines `first` to 6.
void ClearStatusLines(int first = 2);

}  // namespace quillet
