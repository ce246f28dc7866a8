// Looking through a whole word graph once, so that no walk through a damaged or hostile file can leave the
// array or run for ever.
#pragma once

#include <optional>
#include <string>

#include "words/dict.h"

namespace quillet {

// The first broken invariant of the graph in plain English, with the edge's index ("edge 12: letters not
// in ascending order"); none when the graph is sound. Linear in the number of edges.
//
// Checked: numedges fits the store and the 22-bit limit; letters A to Z, ascending within a list; the last
// list closed; each child index above its parent, inside the array, at the start of a list, each list with
// exactly one parent; no edge without both word end and children; at most 16 letters deep; numwords and
// the 26 sums equal to what the graph holds.
std::optional<std::string> FindBrokenInvariant(const Dict& dict);

}  // namespace quillet
