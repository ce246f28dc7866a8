
#include "base/presentation.h"
#include "support/recording_presentation.h"

namespace quillet {

void OpenStatus(std::string_view line1, std::string_view line2, std::string_view line3,
                std::string_view line4) {
    std::string lines;
    for (const std::string_view line : {line1, line2, line3, line4}) {
        lines += (lines.empty() ? "[" : " [") + std::string(line) + "]";
    }
    Record("OpenStatus", lines);
}
void SetStatusWindowLine(std::string_view text, int line) { Record("SetStatusWindowLine", line, text); }
void SetStatusProgress(std::uint32_t done, std::uint32_t total) { Record("SetStatusProgress", done, total); }
void CloseStatus() { Record("CloseStatus"); }
std::optional<char> AskBlankLetter(int row, int col) {
    Record("AskBlankLetter", row, col);
    if (recorded.blankLetters.empty()) return std::nullopt;
    const std::optional<char> answer = recorded.blankLetters.front();
    recorded.blankLetters.pop_front();
    return answer;
}
bool ChoosePlayers() {
    Record("ChoosePlayers");
    return recorded.playersChosen;
}
bool ChangeOnePlayer(int player) {
    Record("ChangeOnePlayer", player);
    return false;
}

}  // namespace quillet
