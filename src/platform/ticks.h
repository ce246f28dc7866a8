// Time, as the program asks the desktop for it.
#pragma once

#include <cstdint>

namespace quillet {

// Milliseconds since some fixed moment; wraps around after 2^32 of them (about 49 days).
std::uint32_t TickCount();

struct LocalTime {
    int year = 2000;
    int month = 1;  // 1..12
    int day = 1;    // 1..31
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
};

// The local time of day.
LocalTime LocalTimeNow();

// Sleeps for that many milliseconds.
void Pause(std::uint32_t milliseconds);

}  // namespace quillet
