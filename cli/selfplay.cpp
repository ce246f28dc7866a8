// quillet-cli selfplay: games between computer players.
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>

#include "board_text.h"
#include "command.h"
#include "computer/opponents.h"
#include "data.h"
#include "data/saved_game.h"
#include "game/bag.h"
#include "game_report.h"
#include "platform/headless/headless.h"
#include "play/turns.h"
#include "progress.h"
#include "store/preferences.h"
#include "workers.h"

namespace quillet {
namespace {

struct SelfplayOptions {
    std::vector<std::string> players{"Ada 9", "Bo 5"};
    int games = 1;
    std::uint32_t seed = 1;
    std::string scenario = "Classic";
    std::string words;
    std::string squares;
    std::string saveFolder;
    int jobs = 1;
    bool quiet = false;
    bool show = false;
};

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// Each game has a seed of its own, so that it is the same whichever process plays it.
std::uint32_t SeedOfGame(std::uint32_t seed, int index) {
    return seed + static_cast<std::uint32_t>(index) * 0x9E3779B9U;
}

void SetPlayers(const std::vector<std::string>& names) {
    game.numPlayers = static_cast<std::uint16_t>(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        Player& player = game.players[i + 1];
        if (names[i].size() > PlayerName::capacity()) {
            throw CommandFailed{"player \"" + names[i] + "\": a name has at most 12 characters"};
        }
        player.name = PlayerName(names[i]);
        PlayerKindFromName(static_cast<int>(i) + 1);
        if (!player.isComputer) {
            throw CommandFailed{"player \"" + names[i] +
                                "\": a computer player's name ends in its skill, 0 to 9"};
        }
    }
}

void ShowMove(const std::string& rack, bool colour) {
    const MoveRecord& record = game.history.Last();
    const Player& player = game.players[record.player];
    std::printf("%3d. %-12s %-7s  %s", game.history.movesCount, std::string(player.name.View()).c_str(),
                RackText(rack).c_str(), MoveText(record).c_str());
    if (record.numTiles > 0) std::printf("  %d points", record.score);
    std::printf("\n\n%s\n", BoardText(colour).c_str());
}

void ShowEnd() {
    for (const StatusLine& line : game.statusLines) {
        if (!line.empty()) std::printf("%s ", std::string(line.View()).c_str());
    }
    std::printf("\n");
    for (int p = 1; p <= game.numPlayers; ++p) {
        const Player& player = game.players[p];
        std::printf("  %-12s %5d  (%+d for letters left)\n", std::string(player.name.View()).c_str(),
                    player.score, player.lettersAdjustment);
    }
    std::printf("\n");
}

void SaveInto(const std::string& folder, int index) {
    std::array<char, 24> name{};
    std::snprintf(name.data(), name.size(), "game-%05d.qlg", index + 1);
    const std::string path = folder + "/" + name.data();
    if (!SaveGame(SystemPath(path))) throw CommandFailed{"cannot write " + path};
}

GameResult PlayGame(const SelfplayOptions& options, int index) {
    SeedRandom(SeedOfGame(options.seed, index));
    headless.messages.clear();
    const auto start = Clock::now();
    const bool colour = isatty(STDOUT_FILENO) != 0;
    BeginGame(false);
    if (options.show) std::printf("Game %d of %d\n\n", index + 1, options.games);
    while (!game.gameOver) {
        const std::string rack(game.Current().rack.Codes().View());
        FinishTurn();
        if (options.show) ShowMove(rack, colour);
    }
    if (options.show) ShowEnd();
    if (!options.saveFolder.empty()) SaveInto(options.saveFolder, index);
    return ResultOfGame(index, SecondsSince(start));
}

void SetUpTable(const SelfplayOptions& options) {
    game = FreshGameState();
    LoadScenarioNamed(options.scenario);
    if (!options.squares.empty()) SetSquares(ReadWholeFile(options.squares), options.squares);
    LoadWords(WordsToPlayWith(options.words));
    SetPlayers(options.players);
    if (!options.saveFolder.empty()) MakeFolder(options.saveFolder);
    preferences.tellComputerToMove = true;  // one move at each call, so that each can be shown
    preferences.showComputerLetters = false;
}

void RunSelfplay(const SelfplayOptions& options) {
    SetUpTable(options);
    const Progress progress(!options.quiet && !options.show, options.games, "games");
    const auto start = Clock::now();
    const std::vector<GameResult> results = PlayGames(
        options.games, options.show ? 1 : options.jobs, [&](int index) { return PlayGame(options, index); },
        [&](int done) { progress.Show(done); });
    std::printf("%s", ResultTable(options.players, results).c_str());
    if (!options.quiet) std::fprintf(stderr, "%s", SpeedLine(results, SecondsSince(start)).c_str());
}

}  // namespace

void AddSelfplayCommand(CLI::App& app) {
    auto options = std::make_shared<SelfplayOptions>();
    CLI::App* command = app.add_subcommand("selfplay", "Play games between computer players");
    command->add_option("--players", options->players, "1 to 4 names, each ending in its skill: \"Ada 9\"")
        ->expected(1, kMaxPlayers)
        ->type_name("NAME");
    command->add_option("--games", options->games, "How many")->check(CLI::Range(1, 1'000'000));
    command->add_option("--seed", options->seed, "The same seed gives the same games on every machine");
    command->add_option("--scenario", options->scenario, "What to play")->type_name("NAME");
    AddWordsOption(*command, options->words);
    command->add_option("--save", options->saveFolder, "Folder for the games played, a .qlg file each")
        ->type_name("FOLDER");
    command
        ->add_option(
            "--squares", options->squares,
            "Board instead of the scenario's: 15 lines of 15 square characters (. d D t T q Q p P 1-6)")
        ->type_name("FILE");
    command->add_option("--jobs", options->jobs, "Worker processes")->check(CLI::Range(1, 256));
    command->add_flag("--quiet", options->quiet, "The table only");
    command->add_flag("--show", options->show, "Print each move and the board");
    command->callback([options] { RunSelfplay(*options); });
}

}  // namespace quillet
