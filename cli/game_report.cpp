#include "game_report.h"

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace quillet {
namespace {

struct PlayerTotals {
    int wins = 0;
    double score = 0;
    double moves = 0;
    double movePoints = 0;
    double bingos = 0;
    int bestMove = 0;
};

PlayerTotals TotalsOf(std::size_t player, const std::vector<GameResult>& results) {
    PlayerTotals totals;
    for (const GameResult& result : results) {
        const PlayerResult& part = result.players[player];
        if (result.winner == static_cast<int>(player) + 1) ++totals.wins;
        totals.score += part.score;
        totals.moves += part.moves;
        totals.movePoints += part.movePoints;
        totals.bingos += part.bingos;
        totals.bestMove = std::max(totals.bestMove, part.bestMove);
    }
    return totals;
}

template <typename... Values>
std::string Formatted(const char* format, Values... values) {
    std::array<char, 160> buffer{};
    std::snprintf(buffer.data(), buffer.size(), format, values...);
    return buffer.data();
}

}  // namespace

GameResult ResultOfGame(int index, double seconds) {
    GameResult result;
    result.index = index;
    result.winner = game.winner;
    result.seconds = seconds;
    for (int p = 1; p <= game.numPlayers; ++p) result.players[p - 1].score = game.players[p].score;
    for (int n = 1; n <= game.history.movesCount; ++n) {
        const MoveRecord& record = game.history.records[n];
        PlayerResult& part = result.players[record.player - 1];
        ++part.moves;
        part.movePoints += record.score;
        if (record.numTiles == kRackSize) ++part.bingos;
        part.bestMove = std::max(part.bestMove, record.score);
    }
    return result;
}

std::string ResultTable(const std::vector<std::string>& names, const std::vector<GameResult>& results) {
    const auto games = static_cast<double>(results.size());
    std::string table = Formatted("%-12s %7s %7s %11s %10s %12s %10s\n", "Player", "Games", "Wins",
                                  "Mean score", "Mean move", "Bingos/game", "Best move");
    for (std::size_t p = 0; p < names.size(); ++p) {
        const PlayerTotals totals = TotalsOf(p, results);
        table += Formatted("%-12s %7.0f %7d %11.1f %10.2f %12.2f %10d\n", names[p].c_str(), games,
                           totals.wins, totals.score / games, totals.movePoints / std::max(totals.moves, 1.0),
                           totals.bingos / games, totals.bestMove);
    }
    const auto ties = std::ranges::count(results, 0, &GameResult::winner);
    if (ties > 0)
        table += Formatted("%d of the games %s a tie\n", static_cast<int>(ties), ties == 1 ? "was" : "were");
    return table;
}

std::string SpeedLine(const std::vector<GameResult>& results, double wallSeconds) {
    double seconds = 0;
    double moves = 0;
    for (const GameResult& result : results) {
        seconds += result.seconds;
        for (const PlayerResult& part : result.players) moves += part.moves;
    }
    return Formatted("%.0f microseconds per move, %.0f games per second\n",
                     seconds / std::max(moves, 1.0) * 1e6,
                     static_cast<double>(results.size()) / std::max(wallSeconds, 1e-9));
}

}  // namespace quillet
