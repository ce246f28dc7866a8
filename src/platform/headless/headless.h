// The desktop without a screen: what a test or the terminal companion sets up and reads back.
//
// The clock stands still until someone moves it; Pause moves it by the time asked for and returns at once.
// Message boxes are recorded; questions take their answers from a queue.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "platform/message_box.h"
#include "platform/ticks.h"

namespace quillet {

struct ShownMessage {
    BoxKind kind;
    std::string text;
};

struct AskedQuestion {
    std::string text;
    bool yesIsDefault;
};

struct Headless {
    std::uint32_t tick = 1000;  // milliseconds
    LocalTime localTime;
    std::vector<ShownMessage> messages;
    std::vector<AskedQuestion> questions;
    std::deque<bool> answers;  // for the questions to come; when it runs out, the default button is pressed
    int beeps = 0;
};

inline Headless headless;

}  // namespace quillet
