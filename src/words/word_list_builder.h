// Building a word graph in bulk: the same set of words that AddWord would hold, in a fraction of the time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "words/dict.h"

namespace quillet {

// Replaces the dict's list by these words (any order, repeats allowed; each 1 to 15 letters A to Z), with
// a fresh store and all counters zero. False with the warning "Too many words!" when they need more than
// kMaxEdges edges; the dict is then as it was.
bool BuildDict(Dict& dict, const std::vector<Word>& words);

// How many edges a graph of these words has.
std::size_t CountEdges(const std::vector<Word>& words);

// The words of a plain text, upper-cased, in the order of the text, repeats kept. A word is a run of
// lower-case letters a to z that stands at the very start or right after a space, a tab or a line end, is
// ended by one of these or by the end of the text, and has at most 15 letters; everything else (capitals,
// digits, punctuation in or after a word) is passed over. Lines may end with CR, LF or both.
std::vector<Word> WordsOfText(std::string_view text);

// The list as text: one lower-case word a line in alphabetical order, lines ended by CR LF.
std::string TextOfWords(const Dict& dict);

}  // namespace quillet
