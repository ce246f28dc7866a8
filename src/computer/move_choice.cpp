#include "computer/move_choice.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/idle_pump.h"
#include "computer/move_generator.h"
#include "game/bag.h"

namespace quillet {
namespace {

struct CeilingRange {
    int lowest;
    int highest;
};

// By level; the levels above have no ceiling.
constexpr std::array<CeilingRange, kHighestScoringLevel> kCeilings{
    {{3, 10}, {5, 15}, {7, 20}, {10, 25}, {15, 30}, {20, 35}, {25, 40}, {30, 45}}};

constexpr int kMaxExchangesBeforePoorMove = 3;
constexpr int kMaxExchangesBeforePass = 5;
constexpr int kHighValue = 8;  // points: letters that an exchange keeps up to two of

std::optional<int> DrawCeiling(int level) {
    if (level >= kHighestScoringLevel) return std::nullopt;
    const CeilingRange& range = kCeilings[static_cast<std::size_t>(level)];
    return Rand(range.lowest, range.highest);
}

PerLetter<int> CountUsed(const Candidate& candidate) {
    PerLetter<int> used;
    for (int n = 1; n <= candidate.numTiles; ++n) ++used[candidate.letters[n]];
    return used;
}

// What the tiles kept are worth, and those played.
std::int32_t LeaveValue(const PerLetter<int>& used, const RackCounts& have, int leave, int bag) {
    std::int32_t value = 0;
    int vowelsUsed = 0;
    for (LetterCode vowel : {'A', 'E', 'I', 'O', 'U'}) vowelsUsed += used[vowel];
    const int vowelsLeft = have.vowels - vowelsUsed;
    const bool keepsBlank = have.count[kBlank] > used[kBlank];
    if (bag > 0 && leave > 1 && !keepsBlank) {
        if (leave == vowelsLeft) {
            value -= leave + 3;
        } else if (vowelsLeft == 0) {
            value -= leave + 1;
        }
    }
    for (LetterCode letter = 'A'; letter <= 'Z'; ++letter) {
        const int kept = have.count[letter] - used[letter];
        if (kept > 1) value -= 2 * kept;
    }
    const int drawn = game.bag.totaltiles - bag;
    if (used['Q'] > 0) value += drawn / 5;
    const bool strandsQ =
        have.count['Q'] > 0 && used['Q'] == 0 && used['U'] > 0 && used['U'] == have.count['U'];
    if (strandsQ) value -= 10;
    if (bag >= kRackSize) value -= 4 * used['S'] + 8 * used[kBlank];
    return value;
}

// While the bag is full enough, an exchange is better than a move that scores little or leaves a bad rack.
bool IsTooPoor(const Candidate& candidate, const PerLetter<int>& used, const RackCounts& have) {
    if (candidate.score < 14 && candidate.numTiles < 5) return true;
    if (candidate.score < 20 && used[kBlank] > 0) return true;
    for (LetterCode letter = 'A'; letter <= 'Z'; ++letter) {
        if (have.count[letter] - used[letter] > 3) return true;
    }
    return false;
}

std::int32_t StrategicValue(const Candidate& candidate, int rackLength) {
    const RackCounts& have = moveSearch.rackCounts;
    const PerLetter<int> used = CountUsed(candidate);
    const int bag = game.bag.tilesleft;
    const int leave = rackLength - candidate.numTiles;
    std::int32_t value = candidate.score + candidate.numTiles;
    if (leave == 0 && rackLength < kRackSize) value += 100;
    value += LeaveValue(used, have, leave, bag);
    if (game.StartSquareIsEmpty()) {
        const int firstCol = candidate.cols[1];
        const int lastCol = candidate.cols[candidate.numTiles];
        value += std::min(firstCol - 1, kBoardSize - lastCol);
    }
    if (bag >= kRackSize && IsTooPoor(candidate, used, have)) value = kTooPoor;
    return value;
}

// The tiles to throw back, in rack order. Each tile thrown lowers its count at once, so that what is said
// of later tiles holds for the rack as it will be.
Text<kRackSize> ChooseExchange(std::string_view rack) {
    PerLetter<std::uint16_t>& count = moveSearch.rackCounts.count;
    int highValuesKept = 0;
    Text<kRackSize> thrown;
    for (LetterCode code : rack) {
        const bool staysAnyway = (code == 'Q' && (count[kBlank] > 0 || count['U'] > 0)) ||
                                 (code == 'U' && count['U'] == 1 && count['Q'] > 0) ||
                                 (code == 'S' && count['S'] == 1) || code == kBlank;
        if (staysAnyway) continue;
        if (code == 'Q' || game.settings.letterValues[code] < kHighValue || highValuesKept >= 2) {
            thrown.Append(code);
            --count[code];
        } else {
            ++highValuesKept;
        }
    }
    if (game.Current().isComputer) ++exchangeCount[game.currentPlayer];
    return thrown;
}

void PutOnBoard(const Candidate& candidate) {
    for (int n = 1; n <= candidate.numTiles; ++n) {
        const int row = candidate.transposed ? candidate.cols[n] : candidate.rows[n];
        const int col = candidate.transposed ? candidate.rows[n] : candidate.cols[n];
        Square& square = game.board[row][col];
        square.state = SquareState::Placed;
        square.letter = candidate.letters[n];
        if (square.letter == kBlank) square.blankLetter = candidate.blankLetters[n];
    }
}

}  // namespace

void ResetExchangeCounts() { exchangeCount = {}; }

int EvaluateCandidates(int level, std::string_view rack) {
    const bool firstMove = game.StartSquareIsEmpty();
    std::int32_t bestValue = INT32_MIN;
    int best = 1;
    for (int i = 1; i <= moveSearch.candidates.count; ++i) {
        Candidate& candidate = moveSearch.candidates.entries[i];
        candidate.value = level == kStrategicLevel ? StrategicValue(candidate, static_cast<int>(rack.size()))
                                                   : candidate.score;
        // A first move goes across rather than down, and the last of equal ones is taken.
        if (firstMove && candidate.value == bestValue && candidate.transposed) --candidate.value;
        const bool better = firstMove ? candidate.value >= bestValue : candidate.value > bestValue;
        if (better) {
            bestValue = candidate.value;
            best = i;
        }
    }
    return best;
}

ChosenMove FindMove(int level, std::string_view rack) {
    BeginComputation();
    const bool isHint = !game.Current().isComputer;
    GenerateMoves(rack, DrawCeiling(level), isHint);
    ChosenMove move;
    const std::uint16_t exchanges = exchangeCount[game.currentPlayer];
    if (moveSearch.candidates.count == 0) {
        const bool passes =
            game.bag.tilesleft < kRackSize || exchanges > kMaxExchangesBeforePass || !moveSearch.hadWords;
        if (!passes) move.usedLetters = ChooseExchange(rack);
        return move;
    }
    const Candidate& chosen = moveSearch.candidates.entries[EvaluateCandidates(level, rack)];
    if (chosen.value == kTooPoor && exchanges < kMaxExchangesBeforePoorMove) {
        move.usedLetters = ChooseExchange(rack);
        return move;
    }
    exchangeCount[game.currentPlayer] = 0;
    move.score = chosen.score;
    move.bonusCount = chosen.bonusCount;
    PutOnBoard(chosen);
    for (int n = 1; n <= chosen.numTiles; ++n) move.usedLetters.Append(chosen.letters[n]);
    return move;
}

}  // namespace quillet
