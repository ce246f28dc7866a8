// How a long computation stays polite: at each of its checkpoints it asks TimeCheck, which lets the window
// handle one waiting message at most every 10 milliseconds and says when the user pressed Escape.
//
// Changed by the computations themselves (through these functions), and by the window, which installs its
// idle hook and sets abortRequested.
#pragma once

#include <cstdint>

namespace quillet {

struct Pump {
    bool abortRequested = false;
    std::uint32_t nextPumpTick = 0;  // milliseconds; the hook runs only once the tick count has passed it
    // Dispatches one waiting message and sets nextPumpTick; without a window there is nothing to do.
    void (*idleHook)() = [] {};
};

inline Pump pump;

// A computation starts: no abort is asked for, and its first checkpoint looks at once.
void BeginComputation();

// A checkpoint: true when the computation must stop with what it has.
bool TimeCheck();

// Waits until the tick count has moved on by that many milliseconds since `startTick`, keeping the window
// alive; an abort ends the wait.
void WaitSince(std::uint32_t startTick, std::uint32_t milliseconds);

}  // namespace quillet
