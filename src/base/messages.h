// Telling the user about problems and asking yes or no. Every other module reports through these.
//
// The up to four pieces of a message are shown with nothing added between them; what goes beyond 255
// characters is cut.
#pragma once

#include <string_view>

#include "base/text.h"
#include "resources/strings.h"

namespace quillet {

// The program's end as Fatal asks for it: thrown, so that everything on the way out is released, and
// caught only where the program started, which then exits with code 0.
struct ProgramEnd {};

// A message with an OK button; the program goes on.
void Warning(std::string_view piece1, std::string_view piece2 = {}, std::string_view piece3 = {},
             std::string_view piece4 = {});

// A message with a Quit button; the program ends (throws ProgramEnd).
[[noreturn]] void Fatal(std::string_view piece1, std::string_view piece2 = {}, std::string_view piece3 = {},
                        std::string_view piece4 = {});

// A question with the buttons Yes and No; true only for Yes.
bool AskYesNo(bool yesIsDefault, std::string_view piece1, std::string_view piece2 = {},
              std::string_view piece3 = {}, std::string_view piece4 = {});

// Puts string `id` of the string table into the buffer, as far as it fits; an unknown id leaves it empty.
template <std::size_t N>
void GetResourceString(StringId id, Text<N>& buffer) {
    buffer = Text<N>(ResourceString(id));
}

}  // namespace quillet
