// The bag and the program's only source of random numbers.
//
// Owns the random generator; changes game.bag and, when a game is set up, the racks.
#pragma once

#include <cstdint>
#include <span>

#include "game/game_state.h"

namespace quillet {

// Seeds the generator (additive lagged Fibonacci, lags 24 and 55: Knuth, The Art of Computer Programming,
// volume 2, 3.2.2). The same seed gives the same numbers on every machine.
void SeedRandom(std::uint32_t seed);

// Seeds from the local time of day; once, when the program starts.
void SeedRandomFromClock();

// A random number in min..max, both included. min when max = min - 1; a warning and min when max is lower
// still.
int Rand(int min, int max);

// Refills the bag from the settings' letter counts. Fatal when they do not make a playable set: more than
// 5 blanks, fewer than 28 tiles, more than 200.
void FillBag();

void AddToBag(LetterCode code);       // Fatal when the bag is full
void RemoveFromBag(LetterCode code);  // Fatal when no such tile is in it
LetterCode DrawFromBag();             // a random tile; Fatal when the bag is empty

// For a rack just filled at these positions (1..8): redraws these tiles up to 10 times, while the mix of
// letters is awkward, and keeps the least awkward draw. Called only when the player wants nice racks.
void NiceLetterMix(std::span<const int> positions, int player);

// How awkward a rack's mix of letters is; 0 is fine.
int LetterMixPenalty(const Rack& rack);

// Draws one tile for each of these positions of the player's rack, then applies the nice letter mix if it
// is wanted.
void DrawToPositions(std::span<const int> positions, int player);

// Chooses who begins and gives every player a full rack: new ones, or those of an opened game.
void SetUpGame();

}  // namespace quillet
