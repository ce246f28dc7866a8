#include "play/clock.h"

#include <algorithm>
#include <optional>

#include "base/messages.h"
#include "base/presentation.h"
#include "game/game_state.h"
#include "platform/ticks.h"
#include "store/numbers.h"
#include "store/preferences.h"

namespace quillet {
namespace {

constexpr std::uint32_t kSecond = 1000;  // milliseconds

// A due blink does not wait for its time.
struct NextBlink {
    bool isDue = true;
    std::uint32_t lastTick = 0;  // milliseconds
};
NextBlink nextBlink;

bool IsInPlay() { return game.IsRunning() && !game.editorActive; }

bool ClockRuns() { return IsInPlay() && preferences.timerEnabled && game.turnStart != 0; }

std::int32_t MeasuredSeconds() { return static_cast<std::int32_t>(SecondsNow() - game.turnStart); }

std::uint32_t MillisecondsToClockTick() {
    if (!ClockRuns()) return kNever;
    return MeasuredSeconds() > game.turnSeconds ? 0 : kSecond - TickCount() % kSecond;
}

std::uint32_t MillisecondsToBlink() {
    const std::uint32_t waited = TickCount() - nextBlink.lastTick;
    return nextBlink.isDue || waited >= kSecond ? 0 : kSecond - waited;
}

bool AnythingBlinks() { return IsInPlay() && (game.Current().isComputer || game.StartSquareIsEmpty()); }

std::optional<std::int32_t> NumberWithin(std::string_view text, std::int32_t min, std::int32_t max) {
    const std::optional<std::int32_t> number = ParseInteger(text);
    return number && *number >= min && *number <= max ? number : std::nullopt;
}

void StartOrStopClock(bool enabled) {
    if (!enabled) {
        game.turnStart = 0;
    } else if (game.IsRunning() && !game.Current().isComputer) {
        game.turnStart = SecondsNow();
        game.turnSeconds = 0;
    }
}

void ChangeGameTimes(const TimerChoice& choice) {
    if (game.history.movesCount == 0) {
        game.timeLimit = choice.timeLimit;
        game.timePenalty = choice.timePenalty;
    } else {
        Warning("New timer settings will take effect from the next game.");
    }
}

}  // namespace

std::uint32_t SecondsNow() { return TickCount() / kSecond; }

void ClockTick() {
    if (!ClockRuns()) return;
    const std::int32_t before = game.turnSeconds;
    game.turnSeconds = MeasuredSeconds();
    if (game.turnSeconds <= before) return;
    const std::int64_t left = std::int64_t{game.timeLimit} * 60 - game.Current().timeUsed;
    if (left - before >= 0 && left - game.turnSeconds < 0) {
        RedrawClock();
    } else {
        RedrawClockDigits();
    }
}

void BlinkTick() {
    if (!IsInPlay() || MillisecondsToBlink() > 0) return;
    if (game.Current().isComputer) ToggleMovePicture();
    if (game.StartSquareIsEmpty()) BlinkStartMark();
    nextBlink = {.isDue = false, .lastTick = TickCount()};
}

void ResetBlink() { nextBlink.isDue = true; }

std::uint32_t MillisecondsToNextTick() {
    return std::min(MillisecondsToClockTick(), AnythingBlinks() ? MillisecondsToBlink() : kNever);
}

TimerField ReadTimerFields(std::string_view timeLimit, std::string_view timePenalty, TimerChoice& choice) {
    const std::optional<std::int32_t> limit = NumberWithin(timeLimit, 1, 99);
    if (!limit) {
        Warning("Time limit must be from 1 to 99.");
        return TimerField::TimeLimit;
    }
    const std::optional<std::int32_t> penalty = NumberWithin(timePenalty, 0, 99);
    if (!penalty) {
        Warning("Penalty must be from 0 to 99.");
        return TimerField::TimePenalty;
    }
    choice.timeLimit = *limit;
    choice.timePenalty = *penalty;
    return TimerField::None;
}

void ApplyTimerChoice(const TimerChoice& choice) {
    const bool switches = choice.enabled != preferences.timerEnabled;
    const bool changesTimes =
        choice.timeLimit != preferences.timeLimit || choice.timePenalty != preferences.timePenalty;
    if (!switches && !changesTimes) return;
    if (switches) StartOrStopClock(choice.enabled);
    if (changesTimes && game.IsRunning()) ChangeGameTimes(choice);
    RememberTimer(choice.enabled, choice.timeLimit, choice.timePenalty);
    RedrawClock();
}

}  // namespace quillet
