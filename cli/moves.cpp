// quillet-cli moves: the best moves for a rack on a board.
#include <algorithm>
#include <cstdio>

#include "board_text.h"
#include "command.h"
#include "computer/move_choice.h"
#include "computer/move_generator.h"
#include "computer/opponents.h"
#include "data.h"
#include "game/bag.h"
#include "store/preferences.h"

namespace quillet {
namespace {

struct MovesOptions {
    std::string board;
    std::string squares;
    std::string rack;
    int level = kStrategicLevel;
    std::uint32_t seed = 1;
    std::string words;
};

// Fills the bag with what is neither on the board nor on the rack. A board may hold more than a full set
// has of a letter; the bag then has none.
void FillBagWithUnseen(std::string_view rack) {
    LetterCounts unseen = game.settings.letterCounts;
    ForEachSquare([&](BoardPosition, const Square& square) {
        if (square.IsLetterSquare()) --unseen[square.letter];
    });
    for (LetterCode code : rack) --unseen[code];
    FillBag();
    game.bag.tilesleft = 0;
    for (LetterCode code = 'A'; code <= kBlank; ++code) {
        for (int i = 0; i < unseen[code]; ++i) AddToBag(code);
    }
}

void SetUpPosition(const MovesOptions& options, std::string_view rack) {
    game = FreshGameState();
    ComputeBounds();
    if (!options.squares.empty()) SetSquares(ReadWholeFile(options.squares), options.squares);
    SetTiles(ReadWholeFile(options.board), options.board);
    if (game.StartSquareIsEmpty() && HoldsTiles(game.board)) {
        throw CommandFailed{options.board + ": there are tiles, but none on the start square 8H"};
    }
    FillBagWithUnseen(rack);
    game.players[1].name = PlayerName("Player " + std::to_string(options.level));
    PlayerKindFromName(1);
    game.gameStarted = true;
    game.gameOver = false;
}

std::string PlacedText(const Candidate& candidate) {
    std::string text;
    for (int n = 1; n <= candidate.numTiles; ++n) {
        const bool isBlank = candidate.letters[n] == kBlank;
        text += isBlank ? static_cast<char>(candidate.blankLetters[n] - 'A' + 'a') : candidate.letters[n];
    }
    return text;
}

void PrintCandidate(int rank, const Candidate& candidate) {
    int row = candidate.rows[1];
    int col = candidate.firstCol;
    if (candidate.transposed) std::swap(row, col);
    std::printf("%d\t%s\t%s\t%s\t%s\t%d\t%d\t%d\n", rank, std::string(candidate.word.View()).c_str(),
                SquareName(row, col).c_str(), candidate.transposed ? "down" : "across",
                PlacedText(candidate).c_str(), candidate.score, candidate.bonusCount, candidate.value);
}

void PrintChoice(const ChosenMove& move) {
    std::vector<BoardPosition> placed;
    ForEachSquare([&](BoardPosition at, const Square& square) {
        if (square.IsPlaced()) placed.push_back(at);
    });
    if (!placed.empty()) {
        std::printf("plays %s for %d\n", PlayText(placed).c_str(), move.score);
    } else if (move.usedLetters.empty()) {
        std::printf("passes\n");
    } else {
        std::printf("exchanges %s\n", RackText(move.usedLetters).c_str());
    }
}

void RunMoves(const MovesOptions& options) {
    const std::string rack = RackCodes(options.rack);
    SetUpPosition(options, rack);
    LoadWords(WordsToPlayWith(options.words));
    preferences.showComputerLetters = false;
    SeedRandom(options.seed);

    const GameState position = game;
    const ChosenMove move = FindMove(options.level, rack);
    const GameState afterMove = game;
    // The choice may have thrown tiles back and valued the moves for its own level.
    game = position;
    moveSearch.rackCounts = CountRack(rack);
    if (moveSearch.candidates.count > 0) EvaluateCandidates(kStrategicLevel, rack);
    for (int i = 1; i <= moveSearch.candidates.count; ++i)
        PrintCandidate(i, moveSearch.candidates.entries[i]);
    game = afterMove;
    PrintChoice(move);
}

}  // namespace

void AddMovesCommand(CLI::App& app) {
    auto options = std::make_shared<MovesOptions>();
    CLI::App* command = app.add_subcommand(
        "moves",
        "List the best moves for a rack on a board, one tab-separated line each: rank, word, first square,\n"
        "direction, tiles played (a blank in lower case), score, bonus words, strategic value; then what a\n"
        "computer player would do");
    command
        ->add_option("--board", options->board,
                     "15 lines of 15 characters: \".\", a tile's letter, a blank's letter in lower case")
        ->type_name("FILE")
        ->required();
    command
        ->add_option("--squares", options->squares,
                     "15 lines of 15 square characters (. d D t T q Q p P 1-6); without it all are plain")
        ->type_name("FILE");
    command->add_option("--rack", options->rack, "1 to 7 letters, ? for a blank")
        ->type_name("LETTERS")
        ->required();
    command->add_option("--level", options->level, "The computer player's skill")->check(CLI::Range(0, 9));
    command->add_option("--seed", options->seed, "Of the random score ceiling that levels 0 to 7 draw");
    AddWordsOption(*command, options->words);
    command->callback([options] { RunMoves(*options); });
}

}  // namespace quillet
