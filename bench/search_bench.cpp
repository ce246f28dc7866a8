// The move search on the fixed positions, by the number of blanks on the rack.
#include <benchmark/benchmark.h>

#include "computer/plain_search.h"
#include "computer/slot_search.h"
#include "positions.h"

namespace quillet {
namespace {

struct Fixture {
    PositionSet positions = ReadPositions();
    Dict dict = ReadLargeList();
    Dict noBonusWords;
    WordIndex mainIndex;
    WordIndex bonusIndex;

    Fixture() { mainIndex.Update(dict); }
};

Fixture& Shared() {
    static Fixture fixture;
    return fixture;
}

// Time is that of one position, from the bare board: cross-checks included.
template <typename Search>
void MeasureSearch(benchmark::State& state, Search search) {
    Fixture& fixture = Shared();
    const std::vector<Position>& positions =
        fixture.positions.byBlanks[static_cast<std::size_t>(state.range(0))];
    CandidateList list;
    std::size_t i = 0;
    for (auto _ : state) {
        const Position& position = positions[i++ % positions.size()];
        const SearchRequest request{.board = position.board,
                                    .bounds = game.bounds,
                                    .settings = game.settings,
                                    .mainDict = fixture.dict,
                                    .bonusDict = fixture.noBonusWords,
                                    .rack = position.rack,
                                    .scoreCeiling = std::nullopt,
                                    .showWords = false};
        search(fixture, request, list);
        benchmark::DoNotOptimize(list);
    }
}

void SlotSearchOfOnePosition(benchmark::State& state) {
    MeasureSearch(state, [](Fixture& fixture, const SearchRequest& request, CandidateList& list) {
        SearchSlots(request, fixture.mainIndex, fixture.bonusIndex, list);
    });
}

void PlainSearchOfOnePosition(benchmark::State& state) {
    MeasureSearch(state, [](Fixture&, const SearchRequest& request, CandidateList& list) {
        SearchPlainly(request, list);
    });
}

BENCHMARK(SlotSearchOfOnePosition)->ArgName("blanks")->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK(PlainSearchOfOnePosition)->ArgName("blanks")->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quillet
