// Shows what words mean.
#pragma once

#include <string_view>

namespace quillet {

// Opens with the meaning of that word, or with none; others can be looked up there.
void DefineWord(std::string_view word);

}  // namespace quillet
