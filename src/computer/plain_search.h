// The move search told plainly: anchors, left parts, extending right over the word graph, each play put on
// the board and scored (after Appel and Jacobson, CACM 31(5), 572-585, 1988).
//
// It defines which moves exist and the order of equal scores. The slot search gives the same list faster;
// this one serves positions that the slot search does not take on, and tests compare the two.
#pragma once

#include "computer/candidate_list.h"
#include "computer/search.h"

namespace quillet {

// Fills the list; stops early with what it has when an abort is requested.
void SearchPlainly(const SearchRequest& request, CandidateList& list);

}  // namespace quillet
