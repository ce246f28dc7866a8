// The Status window of a long word-list operation, for those who ask through base/presentation.h.
#include <algorithm>
#include <array>

#include "base/idle_pump.h"
#include "base/presentation.h"
#include "base/text.h"
#include "resources/dialog_templates.h"

namespace quillet {
namespace {

using StatusText = Text<127>;

Dialog* statusWindow = nullptr;  // while it is open
int percentShown = 0;

void ShowBar(bool shown) {
    ShowControl(*statusWindow, StatusControls::kProgress, shown);
    ShowControl(*statusWindow, StatusControls::kLine1 + 3, !shown);
}

// The operation closes the window when it sees that it is to stop.
void HandleStatus(Dialog&, const DialogEvent& event) {
    if (event.kind == DialogEvent::Kind::Pressed) pump.abortRequested = true;
}

}  // namespace

void OpenStatus(std::string_view line1, std::string_view line2, std::string_view line3,
                std::string_view line4) {
    statusWindow = &OpenModeless(StatusControls::kTemplate, HandleStatus);
    percentShown = 0;
    ShowBar(false);
    int line = 0;
    for (const std::string_view text : {line1, line2, line3, line4}) SetStatusWindowLine(text, ++line);
}

void SetStatusWindowLine(std::string_view text, int line) {
    if (statusWindow == nullptr) return;
    SetControlText(*statusWindow, StatusControls::kLine1 + line - 1, StatusText(text));
}

void SetStatusProgress(std::uint32_t done, std::uint32_t total) {
    if (statusWindow == nullptr || total == 0) return;
    const auto percent = static_cast<int>(std::uint64_t{100} * std::min(done, total) / total);
    if (percent <= percentShown) return;
    if (percentShown == 0) ShowBar(true);
    percentShown = percent;
    SetProgress(*statusWindow, StatusControls::kProgress, percent);
}

void CloseStatus() {
    if (statusWindow == nullptr) return;
    CloseModeless(*statusWindow);
    statusWindow = nullptr;
}

}  // namespace quillet
