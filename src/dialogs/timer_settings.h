// The settings of the game clock.
#pragma once

namespace quillet {

// Shows them, and applies what the person makes of them.
void ShowTimerSettings();

}  // namespace quillet
