#include "computer/move_generator.h"

#include "computer/plain_search.h"
#include "computer/slot_search.h"
#include "store/preferences.h"
#include "words/word_index.h"

namespace quillet {
namespace {

WordIndex mainIndex;
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
        mainIndex.Update(mainDict);
        bonusIndex.Update(bonusDict);
        SearchSlots(request, mainIndex, bonusIndex, moveSearch.candidates);
    } else {
        SearchPlainly(request, moveSearch.candidates);
    }
}

}  // namespace quillet
