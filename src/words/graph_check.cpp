#include "words/graph_check.h"

#include <array>
#include <numeric>
#include <span>
#include <vector>

namespace quillet {
namespace {

// What is known of a list from the edge that points to it, kept at the list's first index. One pass is
// enough, because every child list lies above its parent.
class ListMark {
  public:
    ListMark() = default;  // nothing points here
    ListMark(unsigned depth, unsigned firstLetter)
        : bits(static_cast<std::uint16_t>(depth << 5 | firstLetter)) {}
    bool set() const { return bits != 0; }
    unsigned depth() const { return bits >> 5; }          // of the list's edges; 1 for the root list
    unsigned firstLetter() const { return bits & 0x1F; }  // 0..25; meaningless for the root list

  private:
    std::uint16_t bits = 0;
};

std::string AtEdge(std::size_t index, const char* fault) {
    return "edge " + std::to_string(index) + ": " + fault;
}

std::optional<std::string> BrokenSize(const Dict& dict) {
    if (dict.numedges < 0 || dict.numedges > kMaxEdges) return "numedges out of range";
    if (dict.triesize != 4 * dict.numedges) return "triesize is not 4 * numedges";
    if (dict.spareEdges < 0 || dict.edges.size() != static_cast<std::size_t>(dict.numedges) +
                                                        static_cast<std::size_t>(dict.spareEdges)) {
        return "the store does not hold numedges and spareEdges";
    }
    return std::nullopt;
}

// What is wrong with an edge's child, nothing when it is sound.
const char* ChildFault(std::span<const Edge> edges, std::size_t index, const std::vector<ListMark>& marks,
                       unsigned depth) {
    const std::uint32_t child = edges[index].child();
    if (child <= index) return "child not above its parent";
    if (child >= edges.size()) return "child outside the array";
    if (!edges[child - 1].lastEdge()) return "child not at the start of a list";
    if (marks[child].set()) return "child list has two parents";
    if (depth == kMaxGraphDepth) return "deeper than 16 letters";
    return nullptr;
}

// Looks through all edges and counts the words by their first letters.
std::optional<std::string> BrokenEdge(std::span<const Edge> edges, std::array<std::int32_t, 26>& words) {
    std::vector<ListMark> marks(edges.size() + 1);
    marks[0] = ListMark(1, 0);
    ListMark list;
    unsigned letterBefore = 0;  // in the same list
    bool startsList = true;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const Edge edge = edges[i];
        if (startsList) {
            list = marks[i];
            if (!list.set()) return AtEdge(i, "list without a parent");
            letterBefore = 0;
        }
        const unsigned letter = edge.bits >> 24;
        if (letter < 'A' || letter > 'Z') return AtEdge(i, "letter not A to Z");
        if (letter <= letterBefore) return AtEdge(i, "letters not in ascending order");
        const unsigned firstLetter = list.depth() == 1 ? letter - 'A' : list.firstLetter();
        words[firstLetter] += edge.wordEnd();
        if (edge.child() != 0) {
            if (const char* fault = ChildFault(edges, i, marks, list.depth())) return AtEdge(i, fault);
            marks[edge.child()] = ListMark(list.depth() + 1, firstLetter);
        } else if (!edge.wordEnd()) {
            return AtEdge(i, "neither word end nor children");
        }
        letterBefore = letter;
        startsList = edge.lastEdge();
    }
    if (!startsList) return AtEdge(edges.size() - 1, "last list not closed");
    return std::nullopt;
}

}  // namespace

std::optional<std::string> FindBrokenInvariant(const Dict& dict) {
    if (const auto broken = BrokenSize(dict)) return broken;
    std::array<std::int32_t, 26> words{};
    const std::span<const Edge> edges(dict.edges.data(), static_cast<std::size_t>(dict.numedges));
    if (const auto broken = BrokenEdge(edges, words)) return broken;
    if (words != dict.sum) return "sums differ from the words in the graph";
    if (dict.numwords != std::accumulate(words.begin(), words.end(), 0)) {
        return "numwords differs from the words in the graph";
    }
    return std::nullopt;
}

}  // namespace quillet
