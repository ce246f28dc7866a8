// A place in a word graph: the edges from the root down to one edge, and the ways on from there. Every walk
// through the words in order is made of these steps.
//
// Holds no state. The graph must be sound (words/graph_check.h) and not empty.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "words/dict.h"

namespace quillet {

struct EdgePath {
    std::array<std::uint32_t, kMaxGraphDepth> indices{};  // into Dict::edges, the root list's edge first
    std::size_t depth = 0;                                // how many of them count

    std::uint32_t Top() const { return indices[depth - 1]; }
    std::uint32_t& Top() { return indices[depth - 1]; }
    void Push(std::uint32_t index) { indices[depth++] = index; }
    void Pop() { --depth; }
};

inline Edge TopEdge(const Dict& dict, const EdgePath& path) { return dict.edges[path.Top()]; }

// To the next edge depth first, in alphabetical order: into the child list, or else to the next sibling of
// the edge or of its nearest ancestor that has one. False, with an empty path, after the last edge.
inline bool Advance(const Dict& dict, EdgePath& path) {
    if (const std::uint32_t child = TopEdge(dict, path).child()) {
        path.Push(child);
        return true;
    }
    while (path.depth > 0 && TopEdge(dict, path).lastEdge()) path.Pop();
    if (path.depth == 0) return false;
    ++path.Top();
    return true;
}

// To the first word at or below this edge.
inline void DescendToFirstWord(const Dict& dict, EdgePath& path) {
    while (!TopEdge(dict, path).wordEnd()) path.Push(TopEdge(dict, path).child());
}

// To the last word at or below this edge.
inline void DescendToLastWord(const Dict& dict, EdgePath& path) {
    while (std::uint32_t index = TopEdge(dict, path).child()) {
        while (!dict.edges[index].lastEdge()) ++index;
        path.Push(index);
    }
}

// The letters along the path.
inline Word WordAt(const Dict& dict, const EdgePath& path) {
    Word word;
    for (std::size_t i = 0; i < path.depth; ++i) word.Append(dict.edges[path.indices[i]].letter());
    return word;
}

// Calls visit(path) for each word of the list in alphabetical order, until it returns false.
template <typename Visit>
void VisitWords(const Dict& dict, Visit visit) {
    if (dict.numwords == 0) return;
    EdgePath path;
    path.Push(0);
    do {
        if (TopEdge(dict, path).wordEnd() && !visit(path)) return;
    } while (Advance(dict, path));
}

}  // namespace quillet
