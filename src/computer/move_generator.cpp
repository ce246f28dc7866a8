#include "computer/move_generator.h"

#include <algorithm>
#include <array>

#include "computer/plain_search.h"
#include "computer/slot_search.h"
#include "store/preferences.h"
#include "words/word_index.h"

namespace quillet {
namespace {

// Indexes of the main lists searched lately, so that a computer player's own list and the others' take turns
// without being indexed anew.
struct MainIndexes {
    std::array<WordIndex, 4> indexes;
    std::size_t latest = 0;

    const WordIndex& Of(const Dict& dict) {
        const auto known =
            std::ranges::find_if(indexes, [&](const WordIndex& index) { return index.IsOf(dict); });
        latest = known != indexes.end() ? static_cast<std::size_t>(known - indexes.begin())
                                        : (latest + 1) % indexes.size();
        indexes[latest].Update(dict);
        return indexes[latest];
    }
};

MainIndexes mainIndexes;
WordIndex bonusIndex;

}  // namespace

void GenerateMoves(std::string_view rack, std::optional<int> scoreCeiling, bool isHint) {
    ClearStatusLines();
    const SearchRequest request{.board = game.board,
                                .bounds = game.bounds,
                                .settings = game.settings,
                                .mainDict = mainDict,
                                .bonusDict = bonusDict,
                                .rack = rack,
                                .scoreCeiling = scoreCeiling,
                                .showWords = isHint || preferences.showComputerLetters};
    moveSearch.hadWords = request.HasWords();
    moveSearch.rackCounts = CountRack(rack);
    if (CanSearchSlots(request)) {
        bonusIndex.Update(bonusDict);
        SearchSlots(request, mainIndexes.Of(mainDict), bonusIndex, moveSearch.candidates);
    } else {
        SearchPlainly(request, moveSearch.candidates);
    }
}

}  // namespace quillet
