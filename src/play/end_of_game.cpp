#include "play/end_of_game.h"

#include <algorithm>
#include <string>
#include <vector>

#include "game/game_state.h"
#include "store/preferences.h"

namespace quillet {
namespace {

std::int32_t OvertimePenalty(const Player& player) {
    const std::int32_t over = player.timeUsed - game.timeLimit * 60;
    return preferences.timerEnabled && over > 0 ? (over / 60 + 1) * game.timePenalty : 0;
}

}  // namespace

void FinalAdjust() {
    std::int32_t sum = 0;
    for (int p = 1; p <= game.numPlayers; ++p) {
        Player& player = game.players[p];
        player.overtimePenalty = OvertimePenalty(player);
        player.lettersAdjustment = 0;
        for (LetterCode code : player.rack.Codes()) {
            player.lettersAdjustment -= game.settings.letterValues[code];
        }
        sum -= player.lettersAdjustment;
        player.score += player.lettersAdjustment - player.overtimePenalty;
    }
    Player& player = game.Current();
    if (player.rack.Codes().empty()) {
        player.score += sum;
        player.lettersAdjustment = sum;
    }
}

void CheckEndOfGame() {
    const bool over = game.Current().rack.numtiles == 0 || game.passCount == game.numPlayers ||
                      game.history.movesCount == kMaxMoves;
    if (!over) return;
    game.gameOver = true;
    FinalAdjust();
}

void ShowWinner() {
    std::int32_t best = game.players[1].score;
    for (int p = 2; p <= game.numPlayers; ++p) best = std::max(best, game.players[p].score);
    std::vector<std::uint16_t> winners;
    for (std::uint16_t p = 1; p <= game.numPlayers; ++p) {
        if (game.players[p].score == best) winners.push_back(p);
    }
    game.winner = winners.size() == 1 ? winners.front() : std::uint16_t{0};
    SetStatusLine(1, "End of game.");
    SetStatusLine(2, "Well done");
    int line = 3;
    for (std::uint16_t p : winners) {
        std::string text(p == winners.front() ? "" : "and ");
        text += game.players[p].name.View();
        if (p == winners.back()) text += "!";
        SetStatusLine(line++, text);
    }
    ClearStatusLines(line);
}

}  // namespace quillet
