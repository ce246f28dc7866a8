#include "base/idle_pump.h"

#include <algorithm>

#include "platform/ticks.h"

namespace quillet {

void BeginComputation() {
    pump.abortRequested = false;
    pump.nextPumpTick = 0;
}

bool TimeCheck() {
    if (TickCount() > pump.nextPumpTick && !pump.abortRequested) pump.idleHook();
    return pump.abortRequested;
}

void WaitSince(std::uint32_t startTick, std::uint32_t milliseconds) {
    constexpr std::uint32_t kNap = 10;
    for (;;) {
        const std::uint32_t waited = TickCount() - startTick;
        if (waited >= milliseconds || TimeCheck()) return;
        Pause(std::min(kNap, milliseconds - waited));
    }
}

}  // namespace quillet
