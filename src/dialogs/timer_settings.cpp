#include "dialogs/timer_settings.h"

#include <string>

#include "dialogs/edit_boxes.h"
#include "play/clock.h"
#include "resources/dialog_templates.h"
#include "store/preferences.h"

namespace quillet {
namespace {

constexpr std::size_t kMostDigits = 7;

void FillTimer(Dialog& dialog) {
    SetChecked(dialog, TimerControls::kEnabled, preferences.timerEnabled);
    SetControlText(dialog, TimerControls::kTimeLimit, std::to_string(preferences.timeLimit));
    SetControlText(dialog, TimerControls::kTimePenalty, std::to_string(preferences.timePenalty));
    for (const int field : {TimerControls::kTimeLimit, TimerControls::kTimePenalty}) {
        LimitText(dialog, field, kMostDigits);
    }
    FocusAll(dialog, TimerControls::kTimeLimit);
}

// False when a field has to be corrected first.
bool ReadTimer(Dialog& dialog, TimerChoice& choice) {
    choice.enabled = IsChecked(dialog, TimerControls::kEnabled);
    const TimerField wrong = ReadTimerFields(ControlText(dialog, TimerControls::kTimeLimit),
                                             ControlText(dialog, TimerControls::kTimePenalty), choice);
    if (wrong == TimerField::None) return true;
    FocusAll(dialog,
             wrong == TimerField::TimeLimit ? TimerControls::kTimeLimit : TimerControls::kTimePenalty);
    return false;
}

}  // namespace

void ShowTimerSettings() {
    TimerChoice choice;
    const int result = RunDialog(TimerControls::kTemplate, [&](Dialog& dialog, const DialogEvent& event) {
        if (event.kind == DialogEvent::Kind::Opened) FillTimer(dialog);
        if (event.kind != DialogEvent::Kind::Pressed || event.control == TimerControls::kEnabled) return;
        if (event.control == kCancelId || ReadTimer(dialog, choice)) CloseDialog(dialog, event.control);
    });
    if (result == kOkId) ApplyTimerChoice(choice);
}

}  // namespace quillet
