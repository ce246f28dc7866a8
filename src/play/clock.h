// The game clock and the blinking: what time asks of a game in play, tick by tick, and what changing the
// timer's settings does to it.
//
// Owns when the next blink comes; changes game.turnStart and game.turnSeconds.
#pragma once

#include <cstdint>
#include <string_view>

namespace quillet {

// The tick count in whole seconds.
std::uint32_t SecondsNow();

// Measures the turn and shows what has changed of the clock. Called whenever there is time, also in the
// middle of a computation.
void ClockTick();

// About once a second: the MOVE button flashes while a computer is to move, and the mark of an empty start
// square blinks. Called whenever nothing else is to be done.
void BlinkTick();

// A turn begins: the next blink comes at once.
void ResetBlink();

// How long nothing of the above has anything to do, from 0; kNever when only a move, or the person, can
// change that.
constexpr std::uint32_t kNever = 0xFFFFFFFF;
std::uint32_t MillisecondsToNextTick();

// --- The timer's settings ---

struct TimerChoice {
    bool enabled = false;
    std::int32_t timeLimit = 0;    // minutes, 1..99
    std::int32_t timePenalty = 0;  // points a minute, 0..99
};

// Reads the numbers as they were typed. The field that is wrong, after the warning that says so; the choice
// is then not to be used.
enum class TimerField : std::uint8_t { None, TimeLimit, TimePenalty };
TimerField ReadTimerFields(std::string_view timeLimit, std::string_view timePenalty, TimerChoice& choice);

// Makes the choice the user's, and the game's as far as its rules let it: its clock starts or stops, but its
// limit and penalty change only before the first move.
void ApplyTimerChoice(const TimerChoice& choice);

}  // namespace quillet
