// What a word means: looks it up in the definitions folder, one sorted text file per first letter
// (docs/formats/definitions.md), and tries its base form when the word itself is not there.
//
// Holds no state: each look-up reads its file afresh. A file in any condition is safe to look into; in one
// that is not sorted, words may be missed.
#pragma once

#include <string_view>

#include "base/text.h"

namespace quillet {

using TypedWord = Text<31>;  // a word as a player types it: letters of either case, or anything else

struct Definition {
    bool found = false;
    TypedWord word;  // as given, or shortened to the base form under which it was found
    Text<255> text;  // what to show: the definition, or why there is none; CR ends a line
};

// Are there definitions at all? Warns when not.
bool DefinitionsFolderExists();

// Beeps when the file is missing or cannot be read, but not when it merely lacks the word.
Definition LookUpDefinition(std::string_view word);

}  // namespace quillet
