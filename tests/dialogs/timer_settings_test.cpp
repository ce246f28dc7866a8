#include "dialogs/timer_settings.h"

#include "support/dialog_test.h"

namespace quillet {
namespace {

using Controls = TimerControls;

using TimerSettings = DialogTest;

TEST_F(TimerSettings, AreChangedOnceBothNumbersAreRight) {
    InDialog([](Dialog& dialog) {
        EXPECT_FALSE(IsChecked(dialog, Controls::kEnabled));
        EXPECT_EQ(dialog.focus, Controls::kTimeLimit);
        EXPECT_EQ(EditText(dialog, Controls::kTimeLimit), "[25]");
        EXPECT_EQ(EditText(dialog, Controls::kTimePenalty), "10");
        PressControl(dialog, Controls::kEnabled);
        Enter(dialog, Controls::kTimeLimit, "12345678");
        EXPECT_EQ(EditText(dialog, Controls::kTimeLimit), "[1234567]");
        TypeText(dialog, Controls::kTimeLimit, "30");
        Enter(dialog, Controls::kTimePenalty, "x");
        EXPECT_EQ(dialog.focus, Controls::kTimePenalty);
        EXPECT_EQ(EditText(dialog, Controls::kTimePenalty), "[x]");
        Enter(dialog, Controls::kTimePenalty, "0");
    });
    ShowTimerSettings();
    EXPECT_EQ(ReadItems("Data/Prefs", {2000, 2001, 2002}), "T|30|0|");
    EXPECT_THAT(TakeMessages(), SizeIs(2));
    InDialog([](Dialog& dialog) {
        EXPECT_TRUE(IsChecked(dialog, Controls::kEnabled));
        TypeText(dialog, Controls::kTimeLimit, "5");
    });
    ShowTimerSettings();
    EXPECT_EQ(preferences.timeLimit, 30) << "cancelled";
}

}  // namespace
}  // namespace quillet
