// The game clock and the blinking: what time asks of a game in play.
//
// Owns blink; measures game.turnStart and game.turnSeconds.
#pragma once

#include <cstdint>

namespace quillet {

struct Blink {
    bool startMarkShown = false;
    bool isDue = true;           // the next blink comes at once
    std::uint32_t lastTick = 0;  // milliseconds
};

inline Blink blink;

// A turn begins: the start square's mark starts over and the next blink comes at once.
void ResetBlink();

// The tick count in whole seconds.
std::uint32_t SecondsNow();

}  // namespace quillet
