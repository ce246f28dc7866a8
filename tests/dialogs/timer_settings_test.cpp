#include "dialogs/timer_settings.h"

#include <gmock/gmock.h>

#include "store/preferences.h"
#include "support/dialog_test.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using Controls = TimerControls;

using TimerSettings = DialogTest;

TEST_F(TimerSettings, AreChangedOnceBothNumbersAreRight) {
    InDialog([](Dialog& dialog) {
        EXPECT_FALSE(IsChecked(dialog, Controls::kEnabled));
        EXPECT_EQ(dialog.focus, Controls::kTimeLimit);
        EXPECT_EQ(EditText(dialog, Controls::kTimeLimit), "[25]");
        EXPECT_EQ(EditText(dialog, Controls::kTimePenalty), "10");
        PressControl(dialog, Controls::kEnabled);
        TypeText(dialog, Controls::kTimeLimit, "100");
        PressControl(dialog, kOkId);
        EXPECT_EQ(EditText(dialog, Controls::kTimeLimit), "[100]");
        TypeText(dialog, Controls::kTimeLimit, "12345678");
        EXPECT_EQ(EditText(dialog, Controls::kTimeLimit), "1234567");
        SelectText(dialog, Controls::kTimeLimit);
        TypeText(dialog, Controls::kTimeLimit, "30");
        TypeText(dialog, Controls::kTimePenalty, "x");
        PressControl(dialog, kOkId);
        EXPECT_EQ(dialog.focus, Controls::kTimePenalty);
        EXPECT_EQ(EditText(dialog, Controls::kTimePenalty), "[10x]");
        TypeText(dialog, Controls::kTimePenalty, "0");
        PressControl(dialog, kOkId);
        EXPECT_TRUE(dialog.result);
    });
    ShowTimerSettings();
    EXPECT_EQ(ReadItems("Data/Prefs", {2000, 2001, 2002}), "T|30|0|");
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Time limit must be from 1 to 99.", "Penalty must be from 0 to 99."));
    InDialog([](Dialog& dialog) {
        EXPECT_TRUE(IsChecked(dialog, Controls::kEnabled));
        TypeText(dialog, Controls::kTimeLimit, "5");
    });
    ShowTimerSettings();
    EXPECT_EQ(preferences.timeLimit, 30) << "cancelled";
}

}  // namespace
}  // namespace quillet
