// The presentation that shows nothing and answers every question with "no": for work without a window.
#include "base/presentation.h"

namespace quillet {

void ShowStatusLine(int, std::string_view) {}
void DrawSquare(int, int) {}
void DrawBoardTile(int, int, char) {}
void DrawPlayedBlank(int, int) {}
void FlashSquares(std::span<const BoardPosition>) {}
void RefreshForTurn() {}
void UpdateScorePreview() {}
void RedrawRack() {}
void RedrawLettersLeft() {}
void FlashLettersLeft() {}
void RedrawAfterMove(int) {}
void RedrawPanels() {}
void RedrawWindow() {}
void RedrawClock() {}
void RedrawClockDigits() {}
void ToggleMovePicture() {}
void BlinkStartMark() {}
void ShowOpponentMood(int) {}
void LoadSquarePictures(std::string_view) {}
void SaveSquarePictures(std::string_view) {}
void ShowWaitCursor() {}
void ShowArrowCursor() {}
void OpenStatus(std::string_view, std::string_view, std::string_view, std::string_view) {}
void SetStatusWindowLine(std::string_view, int) {}
void SetStatusProgress(std::uint32_t, std::uint32_t) {}
void CloseStatus() {}
void PlaySoundFile(bool, std::string_view) {}
void StartSoundFile(bool, std::string_view) {}
std::optional<char> AskBlankLetter(int, int) { return std::nullopt; }
bool ChoosePlayers() { return false; }
bool ChangeOnePlayer(int) { return false; }
bool PointerIsOverStatistics() { return false; }

}  // namespace quillet
