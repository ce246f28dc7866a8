// quillet-cli analyse: what each player of saved games played, and what could have been played.
#include <algorithm>
#include <cstdio>
#include <map>

#include "board_text.h"
#include "command.h"
#include "computer/move_generator.h"
#include "data.h"
#include "play/history.h"
#include "progress.h"
#include "store/preferences.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

struct AnalyseOptions {
    std::vector<std::string> files;
    std::string words;
    bool csv = false;
};

// One move of a game, and the best that its rack could have played.
struct AnalysedMove {
    int number = 0;
    std::string player;
    std::string rack;
    std::string played;
    int score = 0;
    std::string best;  // "-" when nothing could be played
    int bestScore = 0;
    int rank = 0;  // of the play among the best 20; 0 when it is not one of them
    bool isBingo = false;
    bool missedBingo = false;

    int Missed() const { return std::max(0, bestScore - score); }
};

struct Summary {
    int moves = 0;
    int points = 0;
    int missed = 0;
    int bingos = 0;
    int missedBingos = 0;
};

bool IsPlayOf(const Candidate& candidate, const MoveRecord& record) {
    if (candidate.numTiles != record.numTiles) return false;
    std::string letters;
    for (int n = 1; n <= candidate.numTiles; ++n) {
        const int row = candidate.transposed ? candidate.cols[n] : candidate.rows[n];
        const int col = candidate.transposed ? candidate.rows[n] : candidate.cols[n];
        if (row != record.coords[n].row || col != record.coords[n].col) return false;
        letters += candidate.letters[n];
        if (candidate.letters[n] == kBlank) letters += candidate.blankLetters[n];
    }
    return record.letters == letters;
}

// The game stands before the record to be redone next; it is then played.
AnalysedMove AnalyseNextMove() {
    const MoveRecord record = game.history.records[game.history.movesCount + 1];
    game.currentPlayer = record.player;
    AnalysedMove move;
    move.number = game.history.movesCount + 1;
    move.player = game.Current().name.View();
    const Text<kRackPositions> codes = game.Current().rack.Codes();
    move.rack = RackText(codes);
    GenerateMoves(codes, std::nullopt, false);
    const CandidateList& found = moveSearch.candidates;
    move.best = found.count == 0 ? "-" : CandidateText(found.entries[1]);
    move.bestScore = found.count == 0 ? 0 : found.entries[1].score;
    const auto candidates = found.List();
    const auto play = std::ranges::find_if(
        candidates, [&](const Candidate& candidate) { return IsPlayOf(candidate, record); });
    move.rank = play == candidates.end() ? 0 : static_cast<int>(play - candidates.begin()) + 1;
    move.isBingo = record.numTiles == kRackSize;
    move.missedBingo = !move.isBingo && std::ranges::any_of(candidates, [](const Candidate& candidate) {
        return candidate.numTiles == kRackSize;
    });
    RedoMove();
    move.played = MoveText(record);
    move.score = record.score;
    return move;
}

std::vector<AnalysedMove> AnalyseGame(const std::string& file, const std::string& words) {
    OpenGame(file);
    const std::string list = WordsToPlayWith(words);
    if (wordList.current != list) LoadWords(list);
    while (game.history.movesCount > 0) UndoMove();
    std::vector<AnalysedMove> moves;
    while (game.history.redoCount > 0 && !game.gameOver) moves.push_back(AnalyseNextMove());
    return moves;
}

std::string RankText(const AnalysedMove& move) { return move.rank == 0 ? "-" : std::to_string(move.rank); }

void PrintTable(const std::string& file, const std::vector<AnalysedMove>& moves) {
    std::printf("%s\n%4s %-12s %-8s %-32s %5s  %-32s %5s %6s %4s\n", file.c_str(), "Move", "Player", "Rack",
                "Played", "Score", "Best", "Score", "Missed", "Rank");
    for (const AnalysedMove& move : moves) {
        std::printf("%4d %-12s %-8s %-32s %5d  %-32s %5d %6d %4s\n", move.number, move.player.c_str(),
                    move.rack.c_str(), move.played.c_str(), move.score, move.best.c_str(), move.bestScore,
                    move.Missed(), RankText(move).c_str());
    }
    std::printf("\n");
}

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (char character : text) quoted += character == '"' ? std::string("\"\"") : std::string(1, character);
    return quoted + "\"";
}

void PrintCsv(const std::string& file, const std::vector<AnalysedMove>& moves) {
    for (const AnalysedMove& move : moves) {
        std::printf("%s,%d,%s,%s,%s,%d,%s,%d,%d,%s\n", Quoted(file).c_str(), move.number,
                    Quoted(move.player).c_str(), Quoted(move.rack).c_str(), Quoted(move.played).c_str(),
                    move.score, Quoted(move.best).c_str(), move.bestScore, move.Missed(),
                    move.rank == 0 ? "" : RankText(move).c_str());
    }
}

void PrintSummaries(const std::map<std::string, Summary>& summaries) {
    std::printf("%-12s %7s %11s %12s %7s %14s\n", "Player", "Moves", "Mean score", "Mean missed", "Bingos",
                "Bingos missed");
    for (const auto& [player, summary] : summaries) {
        const double moves = std::max(summary.moves, 1);
        std::printf("%-12s %7d %11.2f %12.2f %7d %14d\n", player.c_str(), summary.moves,
                    summary.points / moves, summary.missed / moves, summary.bingos, summary.missedBingos);
    }
}

void Analyse(const AnalyseOptions& options) {
    preferences.allowHints = true;  // which undoing needs
    preferences.showComputerLetters = false;
    const Progress progress(options.files.size() > 1, static_cast<int>(options.files.size()), "games");
    if (options.csv) std::printf("file,move,player,rack,played,score,best,best score,missed,rank\n");
    std::map<std::string, Summary> summaries;
    for (std::size_t i = 0; i < options.files.size(); ++i) {
        const std::vector<AnalysedMove> moves = AnalyseGame(options.files[i], options.words);
        (options.csv ? PrintCsv : PrintTable)(options.files[i], moves);
        for (const AnalysedMove& move : moves) {
            Summary& summary = summaries[move.player];
            ++summary.moves;
            summary.points += move.score;
            summary.missed += move.Missed();
            summary.bingos += move.isBingo;
            summary.missedBingos += move.missedBingo;
        }
        progress.Show(static_cast<int>(i) + 1);
    }
    if (!options.csv) PrintSummaries(summaries);
}

}  // namespace

void AddAnalyseCommand(CLI::App& app) {
    auto options = std::make_shared<AnalyseOptions>();
    CLI::App* command = app.add_subcommand(
        "analyse", "Compare what was played in saved games with the best that could have been played");
    command->add_option("games", options->files, "The .qlg files")->required();
    AddWordsOption(*command, options->words);
    command->add_flag("--csv", options->csv, "A line of comma-separated values for each move, nothing else");
    command->callback([options] { Analyse(*options); });
}

}  // namespace quillet
