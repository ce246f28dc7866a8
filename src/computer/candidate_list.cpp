#include "computer/candidate_list.h"

#include <algorithm>

namespace quillet {
namespace {

void ShowTopWords(const CandidateList& list) {
    for (int i = 1; i <= kTopWords; ++i) {
        SetStatusLine(i + 1, i <= list.count ? list.entries[i].word.View() : std::string_view{});
    }
}

}  // namespace

bool StandsBefore(const Candidate& a, const Candidate& b) {
    if (a.score != b.score) return a.score > b.score;
    if (a.rank != b.rank) return a.rank < b.rank;
    const std::string_view wordA = a.word;
    const std::string_view wordB = b.word;
    const int left = wordA.substr(0, a.leftLength).compare(wordB.substr(0, b.leftLength));
    return left != 0 ? left < 0 : wordA < wordB;
}

void InsertCandidate(CandidateList& list, const Candidate& candidate, bool showWords) {
    int i = list.count + 1;
    while (i > 1 && StandsBefore(candidate, list.entries[i - 1])) --i;
    const bool isThere = i > 1 && !StandsBefore(list.entries[i - 1], candidate);
    if (i > kMaxCandidates || isThere) return;
    if (!list.IsFull()) ++list.count;
    for (int k = list.count; k > i; --k) list.entries[k] = list.entries[k - 1];
    list.entries[i] = candidate;
    if (showWords && i <= kTopWords) ShowTopWords(list);
}

}  // namespace quillet
