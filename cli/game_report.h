// What self-play counts, and the table it ends with.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "game/game_state.h"

namespace quillet {

// One player's part in one finished game.
struct PlayerResult {
    std::int32_t score = 0;  // final
    std::int32_t moves = 0;  // placements, exchanges and passes
    std::int32_t movePoints = 0;
    std::int32_t bingos = 0;
    std::int32_t bestMove = 0;
};

// A plain record: workers hand it on as bytes.
struct GameResult {
    std::int32_t index = 0;   // 0-based, of the game
    std::int32_t winner = 0;  // 1..4; 0 for a tie
    double seconds = 0;       // of computing
    std::array<PlayerResult, kMaxPlayers> players{};
};

// Of the game that has just ended.
GameResult ResultOfGame(int index, double seconds);

// A row for each player: games, wins, mean score, mean move, bingos per game, best move. The same for the
// same games, whatever the machine.
std::string ResultTable(const std::vector<std::string>& names, const std::vector<GameResult>& results);

// How fast it went: mean time per move, games per second of `wallSeconds`.
std::string SpeedLine(const std::vector<GameResult>& results, double wallSeconds);

}  // namespace quillet
