#include "computer/rack_subsets.h"

#include <span>

namespace quillet {
namespace {

// One code of the rack.
struct CodeCount {
    LetterCode code;
    int count;
    std::int16_t value;
};

// The rack's codes, worth most first.
std::span<const CodeCount> CodesByValue(const RackCounts& rack, const LetterValues& values,
                                        std::array<CodeCount, kRackSize>& buffer) {
    std::size_t size = 0;
    for (LetterCode code = 'A'; code <= kBlank; ++code) {
        if (rack.count[code] == 0) continue;
        const CodeCount added{code, rack.count[code], static_cast<std::int16_t>(values[code])};
        std::size_t i = size++;
        for (; i > 0 && buffer[i - 1].value < added.value; --i) buffer[i] = buffer[i - 1];
        buffer[i] = added;
    }
    return {buffer.data(), size};
}

struct Subset {
    LetterKey key = 0;
    SortedValues values{};
    std::uint32_t usedUp = kAllLetters;  // letters of which no tile is left on the rack
    std::uint8_t size = 0;
    std::uint8_t blanks = 0;
};

// The subset with `taken` more tiles, of a code worth no more than the tiles it has.
Subset WithTiles(Subset subset, const CodeCount& code, int taken) {
    for (int i = 0; i < taken; ++i) subset.values[subset.size++] = code.value;
    if (code.code == kBlank) {
        subset.blanks = static_cast<std::uint8_t>(taken);
    } else {
        subset.key += static_cast<LetterKey>(taken) * KeyOf(code.code);
        if (taken < code.count) subset.usedUp &= ~LetterBit(code.code);
    }
    return subset;
}

}  // namespace

RackSubsets SubsetsOf(const RackCounts& rack, const LetterValues& values) {
    // The subsets of the codes so far, the empty one first; each further code multiplies them.
    std::array<Subset, RackSubsets::kMaxSubsets + 1> subsets;
    subsets[0] = {};
    int total = 1;
    std::array<CodeCount, kRackSize> buffer;
    for (const CodeCount& code : CodesByValue(rack, values, buffer)) {
        const int before = total;
        for (int taken = 1; taken <= code.count; ++taken) {
            for (int i = 0; i < before; ++i) subsets[total++] = WithTiles(subsets[i], code, taken);
        }
        for (int i = 0; i < before; ++i) subsets[i].usedUp &= ~LetterBit(code.code);
    }

    // Order them by size, and within a size those with blanks last.
    const auto classOf = [](const Subset& subset) { return subset.size * 2 + (subset.blanks > 0 ? 1 : 0); };
    std::array<std::uint8_t, 2 * kRackSize + 3> starts{};
    for (int i = 1; i < total; ++i) ++starts[classOf(subsets[i]) + 1];
    for (std::size_t i = 1; i < starts.size(); ++i)
        starts[i] = static_cast<std::uint8_t>(starts[i] + starts[i - 1]);
    RackSubsets result;
    for (int size = 1; size <= kRackSize; ++size) {
        result.first[size] = starts[size * 2];
        result.firstBlank[size] = starts[size * 2 + 1];
        result.first[size + 1] = starts[size * 2 + 2];
    }
    for (int i = 1; i < total; ++i) {
        const std::size_t place = starts[classOf(subsets[i])]++;
        result.keys[place] = subsets[i].key;
        result.values[place] = subsets[i].values;
        result.blanks[place] = subsets[i].blanks;
        result.blankLetters[place] = subsets[i].usedUp;
    }
    return result;
}

}  // namespace quillet
