// quillet-cli show: the board of a saved game.
#include <unistd.h>

#include <cstdio>

#include "board_text.h"
#include "command.h"
#include "data.h"
#include "play/history.h"
#include "store/preferences.h"

namespace quillet {
namespace {

struct ShowOptions {
    std::string file;
    int move = -1;  // -1: the last
};

void Show(const ShowOptions& options) {
    OpenGame(options.file);
    const int played = game.history.movesCount;
    if (options.move > played) {
        throw CommandFailed{options.file + " has only " + std::to_string(played) + " moves"};
    }
    preferences.allowHints = true;
    while (options.move >= 0 && game.history.movesCount > options.move) UndoMove();
    if (game.history.movesCount > 0) {
        const MoveRecord& last = game.history.Last();
        std::printf("%d. %s  %s  %d points\n\n", game.history.movesCount,
                    std::string(game.players[last.player].name.View()).c_str(), MoveText(last).c_str(),
                    last.score);
    }
    std::printf("%s\n", BoardText(isatty(STDOUT_FILENO) != 0).c_str());
    for (int p = 1; p <= game.numPlayers; ++p) {
        const Player& player = game.players[p];
        std::printf("%c %-12s %5d  %s\n", !game.gameOver && p == game.currentPlayer ? '*' : ' ',
                    std::string(player.name.View()).c_str(), player.score,
                    RackText(player.rack.Codes()).c_str());
    }
    std::printf("%d letters left in the bag\n", game.bag.tilesleft);
}

}  // namespace

void AddShowCommand(CLI::App& app) {
    auto options = std::make_shared<ShowOptions>();
    CLI::App* command = app.add_subcommand("show", "Draw the board of a saved game");
    command->add_option("game", options->file, "The .qlg file")->required();
    command->add_option("--move", options->move, "After that move; without it, after the last")
        ->check(CLI::Range(0, kMaxMoves));
    command->callback([options] { Show(*options); });
}

}  // namespace quillet
