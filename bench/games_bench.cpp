// Whole games between two computer players of level 8.
#include <benchmark/benchmark.h>

#include "computer/opponents.h"
#include "game/bag.h"
#include "play/turns.h"
#include "positions.h"
#include "store/preferences.h"

namespace quillet {
namespace {

void PlayOneGame(benchmark::State& state) {
    ReadPositions();  // for its board
    InstallDict(mainDict, ReadLargeList());
    preferences.showComputerLetters = false;
    game.numPlayers = 2;
    game.players[1].name = "Ada 8";
    game.players[2].name = "Bo 8";
    for (int p = 1; p <= 2; ++p) PlayerKindFromName(p);
    SeedRandom(1);
    for (auto _ : state) {
        BeginGame(false);
        while (!game.gameOver) FinishTurn();
    }
    state.counters["games/s"] = benchmark::Counter(1, benchmark::Counter::kIsIterationInvariantRate);
}

BENCHMARK(PlayOneGame)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillet
