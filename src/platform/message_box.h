// Modal message boxes and the beep. Each box blocks until the user closes it.
#pragma once

#include <cstdint>
#include <string_view>

namespace quillet {

enum class BoxKind : std::uint8_t { Information, Warning, Fatal };

// Sounds the beep of its kind and shows the text with its icon and one button: "OK", or "Quit" in a fatal
// one.
void ShowMessageBox(BoxKind kind, std::string_view title, std::string_view text);

// Shows the text with the buttons Yes and No; true only for Yes.
bool ShowQuestionBox(std::string_view title, std::string_view text, bool yesIsDefault);

// Shows the text with the buttons Retry and Cancel; true for Retry.
bool ShowRetryBox(std::string_view title, std::string_view text);

// The default beep: a refused action.
void Beep();

}  // namespace quillet
