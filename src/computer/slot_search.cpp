#include "computer/slot_search.h"

#include <algorithm>
#include <bit>
#include <vector>

#include "base/idle_pump.h"
#include "computer/lines.h"
#include "computer/rack_subsets.h"
#include "computer/slot_queue.h"
#include "computer/tile_choice.h"

namespace quillet {
namespace {

// What a letter's character can give in a table text: code - "0".
constexpr int kLowestValue = 0 - '0';
constexpr int kHighestValue = 255 - '0';

constexpr std::int32_t kNoScore = INT32_MIN;
constexpr int kStepsPerTimeCheck = 16;

struct Slot {
    std::int32_t bound = 0;     // no play in the slot scores more
    std::int32_t fixed = 0;     // what every play scores, whatever its tiles
    std::int32_t base = 0;      // the fixed score, and the most that crossed squares and bonus words can add
    std::uint16_t rank = 0;     // of the anchor: direction, line, square, bonus words first
    std::uint16_t through = 0;  // which letters it runs through: index into throughs
    std::uint8_t direction = 0;
    std::uint8_t line = 0;
    std::uint8_t wordStart = 0;
    std::uint8_t wordEnd = 0;
    std::uint8_t tiles = 0;       // to be played, 1..7
    std::uint8_t leftLength = 0;  // letters played left of the anchor
    bool mainWordIsBonus = false;
    bool isHuge = false;       // weights too large to store: many word factors of an odd board
    SortedValues freeWeights;  // what a tile's value counts on each square that is not crossed

    std::size_t Length() const { return static_cast<std::size_t>(wordEnd - wordStart + 1); }
};

// What the word index knows of the words that run through the same letters: shared by all slots that do.
struct ThroughLetters {
    LetterKey key;
    bool isBonus;
    // By size of the subsets of the rack, a bit for each subset of that size.
    std::array<std::uint64_t, kRackSize + 1> probed{};
    std::array<std::uint64_t, kRackSize + 1> hasWords{};
    std::array<std::uint32_t, RackSubsets::kMaxSubsets> firstFound;  // by subset: its chain in founds

    ThroughLetters(LetterKey k, bool bonus) : key(k), isBonus(bonus) {}
};

struct Found {
    FoundWords words;
    std::uint32_t next;  // in the chain; kChainEnd at its end
};
constexpr std::uint32_t kChainEnd = UINT32_MAX;

// Kept from search to search, so that nothing is allocated once they have grown.
struct SearchMemory {
    BoardLines board;
    std::vector<Slot> slots;
    SlotQueue queue;
    std::vector<ThroughLetters> throughs;
    std::vector<Found> founds;
    // Open addressing by key; 0 free, else index + 1. More places than a board can have slots.
    std::array<std::uint16_t, 8192> throughTable;
};

SearchMemory memory;

std::int32_t SumOfProducts(const SortedValues& a, const SortedValues& b) {
    std::int32_t sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += std::int32_t{a[i]} * b[i];
    return sum;
}

// The most that tiles of these values can score in the slot: the best of them on the best squares.
std::int32_t BoundOf(const Slot& slot, const SortedValues& values) {
    return slot.isHuge ? INT32_MAX : slot.base + SumOfProducts(slot.freeWeights, values);
}

// What a tile's value counts on the square, in the line's word and the word across it.
std::int32_t WeightOf(const LineSquare& square, int wordFactor) {
    const SquareKindInfo& kind = kSquareKinds[square.kind];
    return kind.letterFactor * (square.isCrossed ? wordFactor + kind.wordFactor : wordFactor);
}

// Collects the slots of one start square, tile by tile.
struct SlotGrower {
    const Line& line;
    const GameSettings& settings;

    Slot slot;  // its free weights grow along
    int freeCount = 0;
    std::int32_t crossedMost = 0;  // what crossed squares can count at most
    std::int32_t bonusAcross = 0;  // what bonus words across the line can add at most
    std::int32_t crossFixed = 0;
    std::int32_t throughSum = 0;
    LetterKey throughKey = 0;
    int wordFactor = 1;
    int first = 0;   // square played on
    int anchor = 0;  // the first one covered; 0 while there is none

    void PassTile(const LineSquare& square) {
        // What is no letter makes no word, but must still tell apart words of different lengths.
        throughKey += IsLetter(square.letter) ? KeyOf(square.letter) : 1;
        throughSum += square.value;
    }
    void AddSquare(int at);
    void AddWeight(const LineSquare& square);
    void FinishSlot(int wordEnd);
};

void SlotGrower::AddWeight(const LineSquare& square) {
    const std::int32_t weight = WeightOf(square, wordFactor);
    if (square.isCrossed) {
        crossedMost += weight * square.value;
        return;
    }
    slot.isHuge = slot.isHuge || weight > INT16_MAX;
    int i = freeCount++;
    for (; i > 0 && slot.freeWeights[i - 1] < weight; --i) slot.freeWeights[i] = slot.freeWeights[i - 1];
    slot.freeWeights[i] = static_cast<std::int16_t>(weight);
}

void SlotGrower::AddSquare(int at) {
    const LineSquare& square = line[at];
    const SquareKindInfo& kind = kSquareKinds[square.kind];
    ++slot.tiles;
    if (square.isCrossed) crossFixed += square.crossSum * kind.wordFactor;
    if (square.bonusMask != 0) bonusAcross += std::max<std::int32_t>(0, settings.bonusWordValue);
    if (square.isAnchor && anchor == 0) anchor = at;
    if (kind.wordFactor == 1) {
        AddWeight(square);
        return;
    }
    wordFactor *= kind.wordFactor;  // which changes the weight of every square
    slot.freeWeights = {};
    freeCount = 0;
    crossedMost = 0;
    for (int i = first; i <= at; ++i) {
        if (line[i].IsEmpty()) AddWeight(line[i]);
    }
}

void SlotGrower::FinishSlot(int wordEnd) {
    slot.wordEnd = static_cast<std::uint8_t>(wordEnd);
    slot.fixed =
        wordFactor * throughSum + crossFixed + (slot.tiles == kRackSize ? settings.sevenLetterBonus : 0);
    slot.base = slot.fixed + crossedMost + bonusAcross;
    const bool hasPrefix = line[anchor - 1].IsTile();
    slot.leftLength = hasPrefix ? std::uint8_t{0} : static_cast<std::uint8_t>(anchor - slot.wordStart);
}

struct SlotSearch {
    const SearchRequest& request;
    const WordIndex& mainIndex;
    const WordIndex& bonusIndex;
    CandidateList& list;
    RackCounts rack;
    RackSubsets subsets;
    SortedValues rackValues;
    std::uint16_t lastThrough = 0;

    SlotSearch(const SearchRequest& searchRequest, const WordIndex& mainWords, const WordIndex& bonusWords,
               CandidateList& candidates)
        : request(searchRequest),
          mainIndex(mainWords),
          bonusIndex(bonusWords),
          list(candidates),
          rack(CountRack(searchRequest.rack)),
          subsets(SubsetsOf(rack, searchRequest.settings.letterValues)),
          rackValues(subsets.values[subsets.first[RackLength()]]) {}

    int RackLength() const { return static_cast<int>(request.rack.size()); }
    const Line& LineOf(const Slot& slot) const { return memory.board[slot.direction].lines[slot.line]; }
    const LengthIndex& IndexOf(const Slot& slot) const {
        return (slot.mainWordIsBonus ? bonusIndex : mainIndex).OfLength(slot.Length());
    }

    void Run();
    void CollectSlots();
    void CollectSlotsOfLine(int direction, int n, const Lines& lines);
    void CollectSlotsFrom(int direction, int n, const Lines& lines, int start);
    void AddSlots(const SlotGrower& grower, int direction, int n);
    void AddSlot(Slot slot, LetterKey throughKey, int anchorRank, bool isBonus);
    std::uint16_t ThroughIndex(LetterKey key, bool isBonus);

    // Could a play of that score and anchor still enter the list?
    bool CanEnter(std::int32_t score, std::uint32_t rank) const;
    std::uint64_t HopefulSubsets(const Slot& slot);
    bool MakesWords(const Slot& slot, int subset);
    void ProbeWithoutBlanks(ThroughLetters& through, const LengthIndex& index, int size);
    void ProbeWithBlanks(ThroughLetters& through, const LengthIndex& index, int subset, int size);
    void LookUpBlanks(const LengthIndex& index, LetterKey key, std::uint32_t letters, int blanks,
                      std::uint32_t& chain);
    void LookUp(const LengthIndex& index, LetterKey key, std::uint32_t& chain);
    std::int32_t BestBound(const Slot& slot);
    void TryWords(const Slot& slot);
    void TryWord(const Slot& slot, const Line& line, std::string_view word);
};

bool SlotSearch::CanEnter(std::int32_t score, std::uint32_t rank) const {
    if (!list.IsFull()) return true;
    const Candidate& last = list.Last();
    return score > last.score || (score == last.score && rank <= last.rank);
}

std::uint16_t SlotSearch::ThroughIndex(LetterKey key, bool isBonus) {
    // Neighbouring slots mostly run through the same letters.
    if (!memory.throughs.empty()) {
        const ThroughLetters& last = memory.throughs[lastThrough];
        if (last.key == key && last.isBonus == isBonus) return lastThrough;
    }
    std::size_t i = (key + isBonus) % memory.throughTable.size();
    for (; memory.throughTable[i] != 0; i = (i + 1) % memory.throughTable.size()) {
        const auto index = static_cast<std::uint16_t>(memory.throughTable[i] - 1);
        if (memory.throughs[index].key == key && memory.throughs[index].isBonus == isBonus) {
            return lastThrough = index;
        }
    }
    memory.throughs.emplace_back(key, isBonus);
    memory.throughTable[i] = static_cast<std::uint16_t>(memory.throughs.size());
    return lastThrough = static_cast<std::uint16_t>(memory.throughs.size() - 1);
}

void SlotSearch::AddSlot(Slot slot, LetterKey throughKey, int anchorRank, bool isBonus) {
    const std::int32_t bonus = isBonus ? request.settings.bonusWordValue : 0;
    slot.fixed += bonus;
    slot.base += bonus;
    slot.bound = BoundOf(slot, rackValues);
    slot.mainWordIsBonus = isBonus;
    slot.rank = static_cast<std::uint16_t>(anchorRank * 2 + (isBonus ? 0 : 1));
    slot.through = ThroughIndex(throughKey, isBonus);
    memory.queue.Push(static_cast<std::uint16_t>(memory.slots.size()), slot.bound);
    memory.slots.push_back(slot);
}

void SlotSearch::AddSlots(const SlotGrower& grower, int direction, int n) {
    Slot slot = grower.slot;
    slot.direction = static_cast<std::uint8_t>(direction);
    slot.line = static_cast<std::uint8_t>(n);
    const int anchorRank = (direction * 16 + n) * 16 + grower.anchor;
    if (request.UsesBonusWords()) AddSlot(slot, grower.throughKey, anchorRank, true);
    if (request.mainDict.numwords > 0) AddSlot(slot, grower.throughKey, anchorRank, false);
}

void SlotSearch::CollectSlotsFrom(int direction, int n, const Lines& lines, int start) {
    const Line& line = lines.lines[n];
    SlotGrower grower{.line = line, .settings = request.settings, .slot = {}, .first = start};
    int wordStart = start;
    while (line[wordStart - 1].IsTile()) grower.PassTile(line[--wordStart]);
    grower.slot.wordStart = static_cast<std::uint8_t>(wordStart);
    int at = start;
    while (grower.slot.tiles < RackLength() && line[at].IsEmpty() && line.allowed[at] != 0) {
        grower.AddSquare(at);
        for (++at; line[at].IsTile(); ++at) grower.PassTile(line[at]);
        if (grower.anchor == 0) continue;
        const bool isSingleLetter = at - wordStart == 1;
        if (isSingleLetter && line[start].isCrossed) continue;  // found across the line, as a longer word
        grower.FinishSlot(at - 1);
        AddSlots(grower, direction, n);
    }
}

void SlotSearch::CollectSlotsOfLine(int direction, int n, const Lines& lines) {
    const Line& line = lines.lines[n];
    int nextAnchor = lines.last + RackLength() + 1;
    for (int start = lines.last; start >= lines.first; --start) {
        if (line[start].isAnchor) nextAnchor = start;
        const bool anchorInReach = nextAnchor - start < RackLength();
        if (line[start].IsEmpty() && anchorInReach) CollectSlotsFrom(direction, n, lines, start);
    }
}

void SlotSearch::CollectSlots() {
    for (int direction = 0; direction < 2; ++direction) {
        const Lines& lines = memory.board[direction];
        for (int n = lines.firstLine; n <= lines.lastLine; ++n) CollectSlotsOfLine(direction, n, lines);
    }
}

void SlotSearch::LookUp(const LengthIndex& index, LetterKey key, std::uint32_t& chain) {
    const FoundWords words = index.Find(key);
    if (words.count == 0) return;
    memory.founds.push_back({words, chain});
    chain = static_cast<std::uint32_t>(memory.founds.size() - 1);
}

// Looks up the words with blanks standing for any of these letters, in ascending order.
void SlotSearch::LookUpBlanks(const LengthIndex& index, LetterKey key, std::uint32_t letters, int blanks,
                              std::uint32_t& chain) {
    for (std::uint32_t rest = letters; rest != 0; rest &= rest - 1) {
        const LetterKey longer = key + kLetterKeys[std::countr_zero(rest)];
        if (blanks > 1) {
            LookUpBlanks(index, longer, rest, blanks - 1, chain);
        } else if (index.MayContain(longer)) {
            LookUp(index, longer, chain);
        }
    }
}

void SlotSearch::ProbeWithBlanks(ThroughLetters& through, const LengthIndex& index, int subset, int size) {
    const std::uint64_t bit = std::uint64_t{1} << (subset - subsets.first[size]);
    std::uint32_t chain = kChainEnd;
    LookUpBlanks(index, through.key + subsets.keys[subset], subsets.blankLetters[subset],
                 subsets.blanks[subset], chain);
    through.probed[size] |= bit;
    through.firstFound[subset] = chain;
    if (chain != kChainEnd) through.hasWords[size] |= bit;
}

// All subsets of that size at once, which is quicker than asking for each whether it is worth asking.
void SlotSearch::ProbeWithoutBlanks(ThroughLetters& through, const LengthIndex& index, int size) {
    const int first = subsets.first[size];
    const int count = subsets.firstBlank[size] - first;
    std::uint64_t hits = 0;
    for (int i = 0; i < count; ++i) {
        hits |= std::uint64_t{index.MayContain(through.key + subsets.keys[first + i])} << i;
    }
    for (std::uint64_t rest = hits; rest != 0; rest &= rest - 1) {
        const int i = std::countr_zero(rest);
        std::uint32_t chain = kChainEnd;
        LookUp(index, through.key + subsets.keys[first + i], chain);
        through.firstFound[first + i] = chain;
        if (chain == kChainEnd) hits &= ~(std::uint64_t{1} << i);
    }
    through.probed[size] = (std::uint64_t{1} << count) - 1;
    through.hasWords[size] = hits;
}

// The subsets of the slot's size that make words, or hold blanks and have not been looked up: a bit for
// each.
std::uint64_t SlotSearch::HopefulSubsets(const Slot& slot) {
    ThroughLetters& through = memory.throughs[slot.through];
    const std::uint64_t all = ~std::uint64_t{0} >> (64 - subsets.CountOfSize(slot.tiles));
    const bool isNew = through.probed[slot.tiles] == 0;
    const bool hasPlain = subsets.firstBlank[slot.tiles] > subsets.first[slot.tiles];
    if (isNew && hasPlain) ProbeWithoutBlanks(through, IndexOf(slot), slot.tiles);
    return (all & ~through.probed[slot.tiles]) | through.hasWords[slot.tiles];
}

// Do the tiles of a hopeful subset make words with the letters run through?
bool SlotSearch::MakesWords(const Slot& slot, int subset) {
    ThroughLetters& through = memory.throughs[slot.through];
    const std::uint64_t bit = std::uint64_t{1} << (subset - subsets.first[slot.tiles]);
    if ((through.probed[slot.tiles] & bit) == 0) {
        ProbeWithBlanks(through, IndexOf(slot), subset, slot.tiles);
    }
    return (through.hasWords[slot.tiles] & bit) != 0;
}

// The highest score that tiles which make words could reach; kNoScore when none could enter the list.
std::int32_t SlotSearch::BestBound(const Slot& slot) {
    std::int32_t best = kNoScore;
    for (std::uint64_t rest = HopefulSubsets(slot); rest != 0; rest &= rest - 1) {
        const int subset = subsets.first[slot.tiles] + std::countr_zero(rest);
        const std::int32_t bound = BoundOf(slot, subsets.values[subset]);
        if (bound > best && CanEnter(bound, slot.rank) && MakesWords(slot, subset)) best = bound;
    }
    return best;
}

void SlotSearch::TryWord(const Slot& slot, const Line& line, std::string_view word) {
    const LetterValues& values = request.settings.letterValues;
    Candidate candidate;
    Text<kRackSize> tiles(request.rack);
    int wordFactor = 1;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const int at = slot.wordStart + static_cast<int>(i);
        if (!line[at].IsEmpty()) continue;
        AddTile(candidate, tiles, slot.line, at, word[i], values, [&](int k) { return line[k].kind; });
        wordFactor *= kSquareKinds[line[at].kind].wordFactor;
    }
    candidate.score = slot.fixed;
    candidate.bonusCount = slot.mainWordIsBonus ? 1 : 0;
    int blanksLeft = rack.count[kBlank];
    for (int n = 1; n <= candidate.numTiles; ++n) {
        const LineSquare& square = line[candidate.cols[n]];
        const LetterCode code = candidate.letters[n];
        if (code == kBlank && blanksLeft-- == 0) return;  // other letters of the same key
        candidate.score += WeightOf(square, wordFactor) * values[code];
        if (square.bonusMask & LetterBit(code == kBlank ? candidate.blankLetters[n] : code)) {
            candidate.score += request.settings.bonusWordValue;
            ++candidate.bonusCount;
        }
    }
    if (request.scoreCeiling && candidate.score > *request.scoreCeiling) return;
    if (!CanEnter(candidate.score, slot.rank)) return;
    candidate.transposed = slot.direction == 1;
    candidate.word = Text<kBoardSize>(word);
    candidate.firstCol = slot.wordStart;
    candidate.rank = slot.rank;
    candidate.leftLength = slot.leftLength;
    InsertCandidate(list, candidate, request.showWords);
}

// Does each letter of the word fit its square?
bool Fits(const std::uint32_t* allowed, const char* word, std::size_t length) {
    for (std::size_t i = 0; i < length; ++i) {
        if ((allowed[i] & LetterBit(word[i])) == 0) return false;
    }
    return true;
}

void SlotSearch::TryWords(const Slot& slot) {
    const Line& line = LineOf(slot);
    const std::uint32_t* allowed = &line.allowed[slot.wordStart];
    const std::size_t length = slot.Length();
    const std::size_t stride = IndexOf(slot).Stride();
    for (std::uint64_t rest = HopefulSubsets(slot); rest != 0; rest &= rest - 1) {
        const int subset = subsets.first[slot.tiles] + std::countr_zero(rest);
        const std::int32_t bound = BoundOf(slot, subsets.values[subset]);
        if (!CanEnter(bound, slot.rank) || !MakesWords(slot, subset)) continue;
        std::uint32_t found = memory.throughs[slot.through].firstFound[subset];
        for (; found != kChainEnd; found = memory.founds[found].next) {
            const FoundWords words = memory.founds[found].words;
            for (std::size_t n = 0; n < words.count; ++n) {
                const char* word = words.letters + n * stride;
                if (Fits(allowed, word, length)) TryWord(slot, line, {word, length});
            }
        }
    }
}

void SlotSearch::Run() {
    memory.slots.clear();
    memory.queue.Clear();
    memory.throughs.clear();
    memory.founds.clear();
    memory.throughTable.fill(0);
    ReadLines(request, rack, mainIndex, memory.board);
    CollectSlots();
    for (int steps = 0; !memory.queue.IsEmpty(); ++steps) {
        if (steps % kStepsPerTimeCheck == 0 && TimeCheck()) return;
        const std::uint16_t i = memory.queue.Pop();
        Slot& slot = memory.slots[i];
        if (!CanEnter(slot.bound, slot.rank)) {
            if (memory.queue.HighestBound() < list.Last().score) return;
            continue;
        }
        const std::int32_t bound = BestBound(slot);
        if (bound == kNoScore) continue;
        if (bound < slot.bound && bound < memory.queue.HighestBound()) {
            slot.bound = bound;
            memory.queue.Push(i, bound);  // others look better now
        } else {
            TryWords(slot);
        }
    }
}

}  // namespace

bool CanSearchSlots(const SearchRequest& request) {
    const auto isOrdinary = [](std::int32_t value) {
        return value >= kLowestValue && value <= kHighestValue;
    };
    if (!std::ranges::all_of(request.settings.letterValues.entries, isOrdinary)) return false;
    return !request.IsFirstMove() || !HoldsTiles(request.board);
}

void SearchSlots(const SearchRequest& request, const WordIndex& mainIndex, const WordIndex& bonusIndex,
                 CandidateList& list) {
    list.count = 0;
    if (request.HasWords() && !request.rack.empty()) {
        SlotSearch(request, mainIndex, bonusIndex, list).Run();
    }
}

}  // namespace quillet
