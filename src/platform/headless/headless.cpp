#include "platform/headless/headless.h"

namespace quillet {

std::uint32_t TickCount() { return headless.tick; }

LocalTime LocalTimeNow() { return headless.localTime; }

void Pause(std::uint32_t milliseconds) { headless.tick += milliseconds; }

void ShowMessageBox(BoxKind kind, std::string_view /*title*/, std::string_view text) {
    headless.messages.push_back({kind, std::string(text)});
}

bool ShowQuestionBox(std::string_view /*title*/, std::string_view text, bool yesIsDefault) {
    headless.questions.push_back({std::string(text), yesIsDefault});
    if (headless.answers.empty()) return yesIsDefault;
    const bool answer = headless.answers.front();
    headless.answers.pop_front();
    return answer;
}

void Beep() { ++headless.beeps; }

}  // namespace quillet
