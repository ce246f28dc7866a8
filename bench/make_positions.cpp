// Prints positions from seeded games, as bench/positions.txt holds them:
//   build/release/bench/make_positions SQUARES > bench/positions.txt
// where SQUARES is a file with 15 lines of square characters.
#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>

#include "computer/opponents.h"
#include "game/bag.h"
#include "play/turns.h"
#include "positions.h"
#include "store/preferences.h"

namespace {

using namespace quillet;

constexpr int kPositionsOfAKind = 150;
constexpr int kMovesBetween = 3;  // positions of one game are this far apart, so that they differ

void StartGame(std::uint32_t seed) {
    SeedRandom(seed);
    game.numPlayers = 2;
    for (int p = 1; p <= 2; ++p) {
        game.players[p].name = p == 1 ? "Ada 8" : "Bo 8";
        PlayerKindFromName(p);
    }
    BeginGame(false);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_positions SQUARES\n";
        return 2;
    }
    std::ifstream file(argv[1]);
    std::string squares;
    for (std::string line; std::getline(file, line);) squares += line;
    InstallDict(mainDict, ReadLargeList());
    preferences.showComputerLetters = false;
    game = FreshGameState();
    LoadSquares(squares);
    ComputeBounds();

    std::cout << squares << '\n';
    std::array<int, kMaxBlanksMeasured + 1> count{};
    const auto isFull = [](int n) { return n == kPositionsOfAKind; };
    for (std::uint32_t seed = 1; !std::ranges::all_of(count, isFull); ++seed) {
        StartGame(seed);
        while (!game.gameOver) {
            const Position position{game.board, std::string(game.Current().rack.Codes().View())};
            const auto blanks = static_cast<std::size_t>(std::ranges::count(position.rack, kBlank));
            const bool isMidGame = game.history.movesCount > 0 && position.rack.size() == kRackSize;
            const bool isWanted =
                blanks == kMaxBlanksMeasured || game.history.movesCount % kMovesBetween == 0;
            if (isMidGame && isWanted && blanks < count.size() && !isFull(count[blanks])) {
                ++count[blanks];
                std::cout << PositionLine(position) << '\n';
            }
            FinishTurn();
        }
    }
}
