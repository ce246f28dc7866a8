#include "platform/ticks.h"

#include <chrono>
#include <ctime>

#include "platform/qt/desktop.h"

namespace quillet {

using namespace std::chrono;

std::uint32_t TickCount() {
    const auto sinceStart = steady_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(duration_cast<milliseconds>(sinceStart).count());
}

LocalTime LocalTimeNow() {
    const auto now = system_clock::now();
    const auto wholeSeconds = floor<seconds>(now);
    const std::time_t time = system_clock::to_time_t(wholeSeconds);
    std::tm local{};
    localtime_r(&time, &local);
    return {.year = local.tm_year + 1900,
            .month = local.tm_mon + 1,
            .day = local.tm_mday,
            .hour = local.tm_hour,
            .minute = local.tm_min,
            .second = local.tm_sec,
            .millisecond =
                static_cast<int>(duration_cast<std::chrono::milliseconds>(now - wholeSeconds).count())};
}

void Pause(std::uint32_t milliseconds) {
    NapUntil(DeadlineIn(milliseconds), [] { return false; });
}

}  // namespace quillet
