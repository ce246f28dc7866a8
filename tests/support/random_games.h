// Games that play themselves at random, with everything that a game can hold: placements, exchanges, passes,
// moves taken back and played again. The same seed gives the same game.
#pragma once

#include <random>

#include "support/world.h"

namespace quillet {

class RandomGame {
  public:
    // Starts a game of 1 to 4 players with a small word list. Every third one is played against the clock.
    explicit RandomGame(std::uint32_t seed);

    void Play(int steps);  // or to the game's end
    int Choose(int min, int max) { return std::uniform_int_distribution<int>(min, max)(random); }

  private:
    void PlayTurn();

    std::mt19937 random;
};

// Where the game stands, as text: what a player could see, the racks and the bag in alphabetical order.
std::string GameText();

}  // namespace quillet
