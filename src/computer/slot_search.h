// The fast move search. It gives the plain search's list, order included, but looks at letters before
// positions:
//
// A slot is a direction, a line, the first square played on and a number of tiles. That fixes which tiles
// on the board the word runs through and what every square is worth, hence an upper bound of the slot's
// scores. Slots are taken best bound first, until no bound reaches the 20th score found. In a slot, each
// subset of the rack of that size whose bound still counts is looked up, together with the letters run
// through, in the word index: most make no word at all. The words that remain are tried square by square
// against the cross-checks and scored.
//
// Working over the letters of a slot rather than the graph of words is our own; anchors and cross-checks
// are those of Appel and Jacobson (CACM 31(5), 1988).
#pragma once

#include "computer/candidate_list.h"
#include "computer/search.h"
#include "words/word_index.h"

namespace quillet {

// False when the position is one for the plain search: a board with tiles but not on its start square, or
// letter values that no file can hold.
bool CanSearchSlots(const SearchRequest& request);

// Fills the list; stops early with what it has when an abort is requested. The indexes are those of the
// request's dicts.
void SearchSlots(const SearchRequest& request, const WordIndex& mainIndex, const WordIndex& bonusIndex,
                 CandidateList& list);

}  // namespace quillet
