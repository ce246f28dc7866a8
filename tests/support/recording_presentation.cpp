#include "support/recording_presentation.h"

#include <sstream>

#include "base/presentation.h"

namespace quillet {
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
bool PointerIsOverStatistics() { return recorded.pointerOverStatistics; }

}  // namespace quillet
