#include "support/recording_presentation.h"

#include <algorithm>
#include <sstream>

#include "base/presentation.h"

namespace quillet {
namespace {

template <typename... Values>
void Record(const char* function, const Values&... values) {
    std::ostringstream call;
    call << function;
    ((call << ' ' << values), ...);
    recorded.calls.push_back(call.str());
    const auto action = recorded.whenCalled.find(function);
    if (action != recorded.whenCalled.end()) action->second();
}

}  // namespace

int RecordedPresentation::Count(const std::string& beginning) const {
    return static_cast<int>(
        std::ranges::count_if(calls, [&](const std::string& call) { return call.starts_with(beginning); }));
}

void ShowStatusLine(int line, std::string_view text) { Record("ShowStatusLine", line, text); }
void DrawSquare(int row, int col) { Record("DrawSquare", row, col); }
void DrawBoardTile(int row, int col, char letter) { Record("DrawBoardTile", row, col, letter); }
void DrawPlayedBlank(int row, int col) { Record("DrawPlayedBlank", row, col); }
void FlashSquares(std::span<const BoardPosition> squares) {
    std::ostringstream list;
    for (const BoardPosition& at : squares) list << (at == squares[0] ? "" : " ") << at.row << ' ' << at.col;
    Record("FlashSquares", list.str());
}
void RefreshForTurn() { Record("RefreshForTurn"); }
void UpdateScorePreview() { Record("UpdateScorePreview"); }
void RedrawRack() { Record("RedrawRack"); }
void RedrawLettersLeft() { Record("RedrawLettersLeft"); }
void FlashLettersLeft() { Record("FlashLettersLeft"); }
void RedrawAfterMove(int player) { Record("RedrawAfterMove", player); }
void RedrawPanels() { Record("RedrawPanels"); }
void RedrawWindow() { Record("RedrawWindow"); }
void RedrawClock() { Record("RedrawClock"); }
void RedrawClockDigits() { Record("RedrawClockDigits"); }
void ToggleMovePicture() { Record("ToggleMovePicture"); }
void BlinkStartMark() { Record("BlinkStartMark"); }
void ShowOpponentMood(int mood) { Record("ShowOpponentMood", mood); }
void LoadSquarePictures(std::string_view scenarioFolder) { Record("LoadSquarePictures", scenarioFolder); }
void SaveSquarePictures(std::string_view scenarioFolder) { Record("SaveSquarePictures", scenarioFolder); }
void ShowWaitCursor() { Record("ShowWaitCursor"); }
void ShowArrowCursor() { Record("ShowArrowCursor"); }
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
void PlaySoundFile(bool inSoundsFolder, std::string_view name) {
    Record("PlaySoundFile", inSoundsFolder ? "sounds" : "opponents", name);
}
void StartSoundFile(bool inSoundsFolder, std::string_view name) {
    Record("StartSoundFile", inSoundsFolder ? "sounds" : "opponents", name);
}
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
bool PointerIsOverStatistics() { return recorded.pointerOverStatistics; }

}  // namespace quillet
