#include "game/consistency.h"

namespace quillet {
namespace {

std::optional<std::string> FindMissingTile(const GameState& state) {
    PerLetter<int> counts;
    for (const auto& row : state.board) {
        for (const Square& square : row) {
            if (!square.IsEmpty() && IsPlayable(square.kind)) ++counts[square.letter];
        }
    }
    for (int p = 1; p <= state.numPlayers; ++p) {
        for (LetterCode code : state.players[p].rack.Codes()) ++counts[code];
    }
    for (int i = 1; i <= state.bag.tilesleft; ++i) ++counts[state.bag.tiles[i]];
    for (LetterCode code : state.thrownBack) ++counts[code];
    for (LetterCode code = 'A'; code <= kBlank; ++code) {
        if (counts[code] != state.settings.letterCounts[code]) {
            return std::to_string(counts[code]) + " tiles of code " + code + " instead of " +
                   std::to_string(state.settings.letterCounts[code]);
        }
    }
    return std::nullopt;
}

std::optional<std::string> FindWrongRack(const GameState& state) {
    int placed = 0;
    for (const auto& row : state.board) {
        for (const Square& square : row) placed += square.IsPlaced();
    }
    for (int p = 1; p <= state.numPlayers; ++p) {
        const Rack& rack = state.players[p].rack;
        std::size_t tiles = rack.Codes().size();
        if (p == state.currentPlayer) tiles += static_cast<std::size_t>(placed) + state.thrownBack.size();
        if (tiles != rack.numtiles || tiles > kRackSize) {
            return "rack of player " + std::to_string(p) + " counts " + std::to_string(rack.numtiles) +
                   " tiles and has " + std::to_string(tiles);
        }
    }
    return std::nullopt;
}

std::optional<std::string> FindWrongScore(const GameState& state) {
    for (int p = 1; p <= state.numPlayers; ++p) {
        int score = 0;
        for (int n = 1; n <= state.history.movesCount; ++n) {
            if (state.history.records[n].player == p) score += state.history.records[n].score;
        }
        const Player& player = state.players[p];
        if (state.gameOver) score += player.lettersAdjustment - player.overtimePenalty;
        if (score != player.score) {
            return "score of player " + std::to_string(p) + " is " + std::to_string(player.score) +
                   ", the moves make " + std::to_string(score);
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> FindInconsistency(const GameState& state) {
    if (!state.gameStarted) return std::nullopt;
    if (auto problem = FindMissingTile(state)) return problem;
    if (auto problem = FindWrongRack(state)) return problem;
    return FindWrongScore(state);
}

}  // namespace quillet
