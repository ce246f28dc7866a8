#include "words/dict.h"

#include <algorithm>
#include <cassert>
#include <new>
#include <utility>

#include "base/messages.h"
#include "base/presentation.h"
#include "platform/message_box.h"
#include "words/edge_path.h"

namespace quillet {
namespace {

constexpr std::int32_t kSpareOfEmptyList = 20000;  // edges
constexpr std::int32_t kSpareOfList = 200;
constexpr std::int32_t kEnlargement = 20000;

// How far down the graph a word could be followed.
enum class Stop {
    WordsEnd,    // every letter matched; `edge` is the last one's
    NoChildren,  // `edge` matched, but no longer word begins so
    Greater,     // no edge for the next letter; `edge` is the first greater one of its list
    PastList     // no edge for the next letter; `edge` is the last of its list, and smaller
};
struct Place {
    EdgePath path;  // the matched edges
    Stop stop = Stop::WordsEnd;
    std::uint32_t edge = 0;
};

// The list must not be empty.
Place Follow(const Dict& dict, std::string_view word) {
    Place place;
    for (std::uint32_t index = 0; const char character : word) {
        const std::uint32_t letter = static_cast<unsigned char>(character);
        while (dict.edges[index].bits >> 24 < letter && !dict.edges[index].lastEdge()) ++index;
        place.edge = index;
        const Edge edge = dict.edges[index];
        if (edge.bits >> 24 != letter) {
            place.stop = edge.bits >> 24 > letter ? Stop::Greater : Stop::PastList;
            return place;
        }
        place.path.Push(index);
        if (place.path.depth == word.size()) break;
        index = edge.child();
        if (index == 0) {
            place.stop = Stop::NoChildren;
            return place;
        }
    }
    return place;
}

bool IsWordAt(const Dict& dict, const Place& place) {
    return place.stop == Stop::WordsEnd && dict.edges[place.edge].wordEnd();
}

std::size_t Used(const Dict& dict) { return static_cast<std::size_t>(dict.numedges); }

std::uint32_t NextRevision() {
    static std::uint32_t last = 0;
    return ++last;
}

// Every change of the set of words passes here once; `change` is 1 or -1.
void CountWord(Dict& dict, char firstLetter, int change) {
    dict.numwords += change;
    dict.sum[static_cast<std::size_t>(firstLetter - 'A')] += change;
    ++(change > 0 ? dict.numAdded : dict.numDeleted);
    dict.revision = NextRevision();
}

// Likewise every change of the number of edges.
void CountEdge(Dict& dict, int change) {
    dict.numedges += change;
    dict.triesize += 4 * change;
    dict.spareEdges -= change;
}

bool Enlarge(Dict& dict) {
    if (dict.fixedStore) return false;
    try {
        dict.edges.resize(dict.edges.size() + kEnlargement);
    } catch (const std::bad_alloc&) {
        return false;
    }
    dict.spareEdges += kEnlargement;
    return true;
}

// Makes sure that so many edges can be added; warns and changes nothing when they cannot.
bool Reserve(Dict& dict, std::size_t count) {
    const auto needed = static_cast<std::int32_t>(count);
    if (dict.numedges > kMaxEdges - needed) {
        Warning("Too many words!");
        return false;
    }
    if (needed > dict.spareEdges && !Enlarge(dict)) {
        Warning("Not enough memory to add new word.");
        return false;
    }
    return true;
}

// Appends the letters behind the last edge in use, as a chain of one-edge lists that ends a word.
void AppendChain(Dict& dict, std::string_view letters) {
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const auto next = static_cast<std::uint32_t>(dict.numedges) + 1;
        const bool last = i + 1 == letters.size();
        dict.edges[Used(dict)].bits =
            static_cast<std::uint32_t>(letters[i]) << 24 | Edge::kLastEdge | (last ? Edge::kWordEnd : next);
        CountEdge(dict, 1);
    }
}

// Puts an edge with that letter at `index`; what stood there and above moves up. Children from
// `firstMoved` on have moved too.
void InsertEdge(Dict& dict, std::uint32_t index, std::uint32_t firstMoved, char letter) {
    if (index < Used(dict)) {
        const auto at = dict.edges.begin() + index;
        const auto end = dict.edges.begin() + dict.numedges;
        std::move_backward(at, end, end + 1);
        for (auto edge = dict.edges.begin(); edge != end + 1; ++edge) {
            edge->bits += (edge->bits & Edge::kChildMask) >= firstMoved;
        }
    }
    dict.edges[index].bits = static_cast<std::uint32_t>(letter) << 24;
    CountEdge(dict, 1);
}

// Adds the letters where following the word had stopped. The edges have been reserved.
void AddBranch(Dict& dict, const Place& place, std::string_view letters) {
    if (place.stop == Stop::NoChildren) {
        dict.edges[place.edge].SetChild(static_cast<std::uint32_t>(dict.numedges));
        AppendChain(dict, letters);
        return;
    }
    std::uint32_t added = place.edge;
    if (place.stop == Stop::Greater) {
        InsertEdge(dict, added, added + 1, letters[0]);  // a list that began here begins with the new edge
    } else {
        dict.edges[place.edge].SetLastEdge(false);
        ++added;
        InsertEdge(dict, added, added, letters[0]);
        dict.edges[added].SetLastEdge(true);
    }
    if (letters.size() == 1) {
        dict.edges[added].SetWordEnd(true);
    } else {
        dict.edges[added].SetChild(static_cast<std::uint32_t>(dict.numedges));
        AppendChain(dict, letters.substr(1));
    }
}

// Takes one edge out; what stands above moves down. True when it was the only edge of its list.
bool RemoveEdge(Dict& dict, std::uint32_t index) {
    bool alone = false;
    if (dict.edges[index].lastEdge()) {
        alone = index == 0 || dict.edges[index - 1].lastEdge();
        if (!alone) dict.edges[index - 1].SetLastEdge(true);
    }
    CountEdge(dict, -1);
    if (index < Used(dict)) {
        const auto at = dict.edges.begin() + index;
        const auto end = dict.edges.begin() + dict.numedges;
        std::move(at + 1, end + 1, at);
        for (auto edge = dict.edges.begin(); edge != end; ++edge) {
            edge->bits -= (edge->bits & Edge::kChildMask) > index;
        }
    }
    return alone;
}

// Removes the path's last edge and then upwards every edge that neither ends a word nor has children.
void RemoveBranch(Dict& dict, EdgePath path) {
    // Child lists lie above their parents, so the edges remembered further up stay where they are.
    while (RemoveEdge(dict, path.Top()) && path.depth > 1) {
        path.Pop();
        Edge& parent = dict.edges[path.Top()];
        parent.SetChild(0);
        if (parent.wordEnd()) return;
    }
}

// Throws std::bad_alloc when memory is short; the old store is gone then.
void FillStore(Dict& dict, std::int32_t usedEdges, std::int32_t spareEdges) {
    std::vector<Edge>().swap(dict.edges);
    static_cast<DictPreamble&>(dict) = {};
    dict.spareEdges = dict.numAdded = dict.numDeleted = 0;
    dict.revision = NextRevision();
    dict.edges.resize(static_cast<std::size_t>(usedEdges + spareEdges));
    dict.numedges = usedEdges;
    dict.triesize = 4 * usedEdges;
    dict.spareEdges = spareEdges;
}

// To the nearest word that is in the list.
EdgePath PathToNeighbour(const Dict& dict, const Place& place) {
    EdgePath path = place.path;
    switch (place.stop) {
        case Stop::NoChildren:
            break;
        case Stop::WordsEnd:
            DescendToFirstWord(dict, path);
            break;
        case Stop::Greater:
            path.Push(place.edge);
            DescendToFirstWord(dict, path);
            break;
        case Stop::PastList:
            path.Push(place.edge);
            DescendToLastWord(dict, path);
            break;
    }
    return path;
}

void StepForward(const Dict& dict, EdgePath& path) {
    do {
        if (!Advance(dict, path)) Fatal("Bug: no previous edge");
    } while (!TopEdge(dict, path).wordEnd());
}

void StepBack(const Dict& dict, EdgePath& path) {
    while (path.Top() == 0 || dict.edges[path.Top() - 1].lastEdge()) {  // the first edge of its list
        path.Pop();
        if (path.depth == 0) Fatal("Bug: no previous edge");
        if (TopEdge(dict, path).wordEnd()) return;
    }
    --path.Top();
    DescendToLastWord(dict, path);
}

}  // namespace

void MakeStore(Dict& dict, std::int32_t triesize) {
    assert(triesize >= 0 && triesize % 4 == 0);
    try {
        FillStore(dict, triesize / 4, triesize == 0 ? kSpareOfEmptyList : kSpareOfList);
    } catch (const std::bad_alloc&) {
        Fatal("Not enough memory for word info!");
    }
}

void MakeBonusStore(Dict& dict) {
    try {
        FillStore(dict, 0, kBonusEdges);
    } catch (const std::bad_alloc&) {
        Fatal("Not enough memory for bonus dict!");
    }
    dict.fixedStore = true;
}

void InstallDict(Dict& dict, Dict&& contents) {
    dict = std::move(contents);
    dict.revision = NextRevision();
    dict.numAdded = dict.numDeleted = 0;
}

bool IsProperWord(std::string_view text) {
    return !text.empty() && text.size() <= kMaxGraphDepth &&
           std::ranges::all_of(text, [](char letter) { return letter >= 'A' && letter <= 'Z'; });
}

bool IsWord(const Dict& dict, std::string_view word) {
    return dict.numwords > 0 && !word.empty() && IsWordAt(dict, Follow(dict, word));
}

bool IsBonusWord(std::string_view word) { return IsWord(bonusDict, word); }

bool AddWord(Dict& dict, std::string_view word) {
    assert(IsProperWord(word));
    if (dict.numwords == 0) {
        if (!Reserve(dict, word.size())) return false;
        AppendChain(dict, word);
    } else {
        const Place place = Follow(dict, word);
        if (IsWordAt(dict, place)) return true;
        if (place.stop == Stop::WordsEnd) {
            dict.edges[place.edge].SetWordEnd(true);
        } else {
            const std::string_view missing = word.substr(place.path.depth);
            if (!Reserve(dict, missing.size())) return false;
            AddBranch(dict, place, missing);
        }
    }
    CountWord(dict, word[0], 1);
    return true;
}

void DeleteWord(Dict& dict, std::string_view word) {
    assert(IsProperWord(word));
    if (dict.numwords == 0) return;
    const Place place = Follow(dict, word);
    if (!IsWordAt(dict, place)) return;
    if (dict.edges[place.edge].child() != 0) {
        dict.edges[place.edge].SetWordEnd(false);
    } else {
        RemoveBranch(dict, place.path);
    }
    CountWord(dict, word[0], -1);
}

Word GetWord(const Dict& dict, std::int32_t n) {
    assert(n >= 0);
    if (dict.numwords == 0) return {};
    if (n >= dict.numwords) Fatal("Bug: n >= numwords");
    // The root list has one edge for each initial letter that is in use: skip whole letters by their sums.
    std::int32_t before = 0;
    std::uint32_t rootEdge = 0;
    for (const std::int32_t sum : dict.sum) {
        if (before + sum > n) break;
        before += sum;
        if (sum != 0) ++rootEdge;
    }
    EdgePath path;
    path.Push(rootEdge);
    DescendToFirstWord(dict, path);
    for (; before < n; ++before) StepForward(dict, path);
    return WordAt(dict, path);
}

std::int32_t FindWordIndex(const Dict& dict, std::string_view word) {
    assert(IsProperWord(word));
    if (dict.numwords == 0) return 0;
    const std::uint32_t target = PathToNeighbour(dict, Follow(dict, word)).Top();
    std::int32_t before = 0;
    std::uint32_t rootEdge = 0;
    for (char letter = 'A'; letter < word[0]; ++letter) {
        const std::int32_t sum = dict.sum[static_cast<std::size_t>(letter - 'A')];
        before += sum;
        if (sum != 0) ++rootEdge;
    }
    if (before >= dict.numwords) return dict.numwords - 1;
    EdgePath path;
    path.Push(rootEdge);
    while (path.Top() != target) {
        if (TopEdge(dict, path).wordEnd()) ++before;
        Advance(dict, path);
    }
    return before;
}

void StepWord(const Dict& dict, int direction, Word& word) {
    if (!IsWord(dict, word)) {
        Beep();
        return;
    }
    EdgePath path = Follow(dict, word).path;
    if (direction > 0) {
        StepForward(dict, path);
    } else {
        StepBack(dict, path);
    }
    word = WordAt(dict, path);
}

bool AskToAddWord(std::string_view word) {
    if (IsWord(mainDict, word)) return true;
    if (!IsProperWord(word)) return false;  // no list can hold it
    if (!AskYesNo(false, "Add \"", word, "\" to the current word list?")) return false;
    ShowWaitCursor();
    AddWord(mainDict, word);
    ShowArrowCursor();
    return true;
}

bool DictChanged(const Dict& dict) { return dict.numAdded > 0 || dict.numDeleted > 0; }

}  // namespace quillet
