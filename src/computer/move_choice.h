// What a computer player does with its rack, by its skill; the same search gives the hints.
//
// Owns exchangeCount.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/one_based.h"
#include "game/game_state.h"

namespace quillet {

// Skills 0 to 7 play the best move that does not score above a random ceiling; the two highest have none.
constexpr int kHighestScoringLevel = 8;  // plays the highest score
constexpr int kStrategicLevel = 9;       // re-values the 20 highest by what they use and leave

// Exchanges each computer player has chosen since it last chose a placement.
inline OneBased<std::uint16_t, kMaxPlayers> exchangeCount;

void ResetExchangeCounts();

struct ChosenMove {
    std::int32_t score = 0;
    // Placement: its tiles in order, "[" for a blank; they also stand on the board as Placed. Exchange: the
    // tiles to throw back; the board is as it was. Pass: empty.
    Text<kRackSize> usedLetters;
    std::uint8_t bonusCount = 0;  // bonus words formed
};

// Chooses a placement, an exchange or a pass at level 0..9 for the player to move, whose rack holds these
// codes. For a human player it is a hint, which counts as no exchange.
ChosenMove FindMove(int level, std::string_view rack);

// Fills the value of every candidate of the latest search for that level and gives the number (1-based) of
// the one to play. There must be a candidate.
int EvaluateCandidates(int level, std::string_view rack);

// The value of a candidate too poor to play while the bag is full enough for an exchange.
constexpr std::int32_t kTooPoor = -666'666;

}  // namespace quillet
