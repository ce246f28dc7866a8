#include "play/clock.h"

#include "play/turns.h"
#include "support/world.h"

namespace quillet {
namespace {

class Clock : public World {
  protected:
    // What the ticks show until that much time has passed, one tick for each time that the loop would wake.
    static Strings Wake(std::uint32_t milliseconds) {
        recorded.calls.clear();
        const std::uint32_t end = headless.tick + milliseconds;
        for (std::uint32_t wait = 0; wait <= end - headless.tick; wait = MillisecondsToNextTick()) {
            headless.tick += wait;
            BlinkTick();
            ClockTick();
        }
        headless.tick = end;
        return recorded.calls;
    }
};

TEST_F(Clock, RunsInAHumansTurnAndTurnsToOvertimeOnce) {
    preferences.timerEnabled = true;
    StartGame({"Ada", "Bo 4"});
    FreezeTiles(8, 8, "CAT");
    game.timeLimit = 1;
    game.players[1].timeUsed = 58;
    EXPECT_THAT(Wake(999), IsEmpty());
    EXPECT_THAT(Wake(1), ElementsAre("RedrawClockDigits"));
    EXPECT_THAT(Wake(3000), ElementsAre("RedrawClockDigits", "RedrawClock", "RedrawClockDigits"));
    EXPECT_EQ(game.turnSeconds, 4);
    for (bool* stopped : {&game.gameOver, &game.editorActive}) {
        *stopped = true;
        EXPECT_EQ(MillisecondsToNextTick(), kNever);
        EXPECT_THAT(Wake(5000), IsEmpty());
        *stopped = false;
    }
    preferences.timerEnabled = false;
    EXPECT_EQ(MillisecondsToNextTick(), kNever);
    EXPECT_THAT(Wake(5000), IsEmpty());
}

TEST_F(Clock, MeasuresAlsoTheTurnOfAComputer) {
    preferences.timerEnabled = true;
    StartGame({"Bo 4", "Ada"});
    FreezeTiles(8, 8, "CAT");
    recorded.whenCalled["ShowOpponentMood"] = [] {
        headless.tick += 2500;
        ClockTick();
    };
    EXPECT_EQ(Wake(3000), Strings(4, "ToggleMovePicture")) << "a computer that waits is not timed";
    FinishTurn();
    EXPECT_EQ(game.players[1].timeUsed, 1) << "what is shown after the move is not the mover's time";
    EXPECT_EQ(recorded.Count("RedrawClockDigits"), 0);
}

TEST_F(Clock, BlinksOnceASecondWhereSomethingIsToBlink) {
    for (const std::uint32_t start : {5000U, 0xFFFF'FE00U}) {
        headless.tick = start;
        StartGame({"Ada", "Bo 4"});
        EXPECT_THAT(Wake(999), ElementsAre("BlinkStartMark"));
        EXPECT_THAT(Wake(2000), ElementsAre("BlinkStartMark", "BlinkStartMark"));
        StartTurn();
        EXPECT_EQ(MillisecondsToNextTick(), 0) << "a turn begins with a blink";
        PutTiles(8, 8, {&game.players[1].rack.positions[1], 1});
        EXPECT_EQ(MillisecondsToNextTick(), kNever);
        EXPECT_THAT(Wake(3000), IsEmpty());
        game.currentPlayer = 2;
        EXPECT_THAT(Wake(0), ElementsAre("ToggleMovePicture"));
        game.board[8][8].state = SquareState::Empty;
        EXPECT_THAT(Wake(1000), ElementsAre("ToggleMovePicture", "BlinkStartMark"));
        game.editorActive = true;
        EXPECT_THAT(Wake(3000), IsEmpty());
        game.editorActive = false;
    }
}

TEST_F(Clock, TimerFieldsTakeWholeNumbersInTheirRange) {
    const Strings none, limit{"Time limit must be from 1 to 99."}, penalty{"Penalty must be from 0 to 99."};
    const std::tuple<const char*, const char*, TimerField, Strings> cases[] = {
        {"1", "0", TimerField::None, none},
        {"99", "99", TimerField::None, none},
        {"0", "x", TimerField::TimeLimit, limit},
        {"100", "0", TimerField::TimeLimit, limit},
        {"", "0", TimerField::TimeLimit, limit},
        {"2.5", "0", TimerField::TimeLimit, limit},
        {"5", "-1", TimerField::TimePenalty, penalty},
        {"5", "100", TimerField::TimePenalty, penalty},
    };
    for (const auto& [typedLimit, typedPenalty, field, messages] : cases) {
        TimerChoice choice;
        EXPECT_EQ(ReadTimerFields(typedLimit, typedPenalty, choice), field)
            << typedLimit << ' ' << typedPenalty;
        EXPECT_EQ(TakeMessages(), messages);
        if (field != TimerField::None) continue;
        EXPECT_EQ(std::to_string(choice.timeLimit), typedLimit);
        EXPECT_EQ(std::to_string(choice.timePenalty), typedPenalty);
    }
}

TEST_F(Clock, NewSettingsTimeThisTurnButChangeNoLimitAfterTheFirstMove) {
    StartGame({"Ada", "Bo"});
    headless.tick = 60'000;
    ApplyTimerChoice({true, 30, 10});
    EXPECT_TRUE(game.turnStart == 60 && game.timeLimit == 30 && game.timePenalty == 10);
    EXPECT_EQ(ReadItems("Data/Prefs", {2000, 2001, 2002}), "T|30|10|");
    EXPECT_THAT(TakeMessages(), IsEmpty());
    GiveScore(1, 5);
    headless.tick = 70'000;
    ApplyTimerChoice({true, 30, 20});
    EXPECT_TRUE(game.turnStart == 60 && game.timePenalty == 10 && preferences.timePenalty == 20);
    EXPECT_THAT(TakeMessages(), ElementsAre("New timer settings will take effect from the next game."));
    ApplyTimerChoice({false, 30, 20});
    EXPECT_EQ(game.turnStart, 0);
    EXPECT_EQ(recorded.Count("RedrawClock"), 3);
    ApplyTimerChoice({false, 30, 20});
    game.gameOver = true;
    ApplyTimerChoice({true, 25, 20});
    EXPECT_TRUE(game.turnStart == 0 && game.timeLimit == 30) << "there is no game to change";
    EXPECT_EQ(recorded.Count("RedrawClock"), 4);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

}  // namespace
}  // namespace quillet
