#include "play/clock.h"

#include "platform/ticks.h"

namespace quillet {

void ResetBlink() { blink = {}; }

std::uint32_t SecondsNow() { return TickCount() / 1000; }

}  // namespace quillet
