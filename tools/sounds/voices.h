// What is done to the words of a speech synthesiser, so that they suit an opponent and the other sounds.
#pragma once

#include <string_view>

#include "wave.h"

namespace quillet {

// `size` is how large the speaker is: 1 usual, 0.85 a child; it is heard in pitch, colour and speed. `manner`
// is "plain", "robot" (speaks out of a metal box) or "owl" (hoots first). The result has one channel.
Wave MakeVoice(const Wave& spoken, double size, std::string_view manner);

bool IsManner(std::string_view manner);

}  // namespace quillet
