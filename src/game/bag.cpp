#include "game/bag.h"

#include <algorithm>
#include <array>

#include "base/messages.h"
#include "platform/ticks.h"
#include "store/preferences.h"

namespace quillet {
namespace {

struct RandomGenerator {
    OneBased<std::uint32_t, 55> table;
    int j = 0;
    int k = 31;
};

RandomGenerator generator;

std::uint32_t RawRandom() {
    generator.j = generator.j % 55 + 1;
    generator.k = generator.k % 55 + 1;
    return generator.table[generator.j] += generator.table[generator.k];
}

constexpr int kMaxRedraws = 10;

}  // namespace

void SeedRandom(std::uint32_t seed) {
    generator = {};
    generator.table[1] = seed;
    for (int i = 2; i <= 55; ++i) generator.table[i] = generator.table[i - 1] * 9821U + 1U;
    for (int i = 0; i < 220; ++i) RawRandom();
}

void SeedRandomFromClock() {
    const LocalTime now = LocalTimeNow();
    SeedRandom(static_cast<std::uint32_t>(((now.hour * 60 + now.minute) * 60 + now.second) * 1000 +
                                          now.millisecond));
}

int Rand(int min, int max) {
    const int range = max - min + 1;
    if (range < 0) Warning("Bad Rand call: min > max");
    if (range <= 0) return min;
    const auto u = static_cast<float>(RawRandom() / 4294967295.0);
    return std::min(max, min + static_cast<int>(double{u} * range));
}

void FillBag() {
    const LetterCounts& counts = game.settings.letterCounts;
    game.bag.tilesleft = 0;
    int total = 0;
    int tiles = 0;  // a table may hold negative counts, which are in the total but put nothing into the bag
    for (int count : counts.entries) {
        total += count;
        tiles += std::max(count, 0);
    }
    if (counts[kBlank] > kMaxBlanks) Fatal("Too many blanks!");
    if (total < kMinTiles) Fatal("Too few letters!");
    if (total > kMaxTiles) Fatal("Too many letters!");
    if (tiles != total) Fatal("Bug: tilesleft <> totaltiles!");
    game.bag.totaltiles = static_cast<std::uint16_t>(total);
    for (LetterCode code = 'A'; code <= kBlank; ++code) {
        for (int i = 0; i < counts[code]; ++i) AddToBag(code);
    }
}

void AddToBag(LetterCode code) {
    if (game.bag.tilesleft >= game.bag.totaltiles) Fatal("Bug: bag is full");
    game.bag.tiles[++game.bag.tilesleft] = code;
}

void RemoveFromBag(LetterCode code) {
    int i = 1;
    while (i <= game.bag.tilesleft && game.bag.tiles[i] != code) ++i;
    if (i > game.bag.tilesleft) Fatal("Bug: requested letter not in bag");
    game.bag.tiles[i] = game.bag.tiles[game.bag.tilesleft--];
}

LetterCode DrawFromBag() {
    if (game.bag.tilesleft == 0) Fatal("Bug: bag is empty");
    const int i = Rand(1, game.bag.tilesleft);
    const LetterCode code = game.bag.tiles[i];
    game.bag.tiles[i] = game.bag.tiles[game.bag.tilesleft--];
    return code;
}

int LetterMixPenalty(const Rack& rack) {
    PerLetter<int> counts;
    int duplicates = 0;
    int vowels = 0;
    for (LetterCode code : rack.Codes()) {
        if (counts[code]++ > 0) ++duplicates;
        if (IsVowel(code)) ++vowels;
    }
    int penalty = 0;
    if (vowels < 2) penalty = 2 - vowels;
    if (vowels > 4) penalty = vowels * 2;
    if (duplicates == 1) penalty += 2;
    if (duplicates > 1) penalty += duplicates * 10;
    if (counts['Q'] > 0 && counts['U'] == 0) penalty += 1;
    return penalty;
}

void NiceLetterMix(std::span<const int> positions, int player) {
    if (positions.empty() || game.bag.tilesleft == 0) return;
    Rack& rack = game.players[player].rack;
    int best = 65535;
    Text<kRackSize> bestCodes;
    for (int tries = 0;; ++tries) {
        const int penalty = LetterMixPenalty(rack);
        if (penalty == 0) return;
        if (penalty < best) {
            best = penalty;
            bestCodes.Clear();
            for (int position : positions) bestCodes.Append(rack.positions[position]);
        }
        for (int position : positions) AddToBag(rack.positions[position]);
        if (tries == kMaxRedraws) break;
        for (int position : positions) rack.positions[position] = DrawFromBag();
    }
    for (std::size_t i = 0; i < positions.size(); ++i) {
        RemoveFromBag(bestCodes[i]);
        rack.positions[positions[i]] = bestCodes[i];
    }
}

void DrawToPositions(std::span<const int> positions, int player) {
    Rack& rack = game.players[player].rack;
    for (int position : positions) rack.positions[position] = DrawFromBag();
    if (preferences.niceLetterMix) NiceLetterMix(positions, player);
}

void SetUpGame() {
    static constexpr std::array kFullRack{1, 2, 3, 4, 5, 6, 7};
    const bool deal = game.dealOnSetUp;
    game.currentPlayer = deal || game.history.movesCount == 0
                             ? static_cast<std::uint16_t>(Rand(1, game.numPlayers))
                             : game.history.records[1].player;
    for (int p = 1; p <= game.numPlayers; ++p) {
        Player& player = game.players[p];
        player.score = 0;
        player.timeUsed = 0;
        player.turns = 0;
        player.rack.positions = {};
        if (deal) {
            DrawToPositions(kFullRack, p);
            game.startRacks[p] = Text<kRackSize>(player.rack.Codes().View());
        } else {
            for (int position : kFullRack) {
                const LetterCode code = game.startRacks[p][static_cast<std::size_t>(position) - 1];
                player.rack.positions[position] = code;
                RemoveFromBag(code);
            }
        }
        player.rack.numtiles = kRackSize;
    }
}

}  // namespace quillet
