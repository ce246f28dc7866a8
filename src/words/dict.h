// The word graph: a word list in memory as a letter trie packed into one array of 32-bit edges, exactly as
// the word-list file stores it, so that loading is one read and searching needs no decoding.
//
// Two instances live for the whole run: mainDict holds the current word list, bonusDict the scenario's
// bonus words. They are changed by AddWord and DeleteWord, by the word-list file module (loading, saving)
// and by the bonus words module (rebuilding).
//
// A list of edges is a run in the array, one edge per letter that can follow the prefix, in ascending
// order, the last one flagged lastEdge. The root list starts at index 0; every child list lies above the
// edge that points to it; every list but the root has exactly one parent; every edge ends a word or has
// children.
//
// Words given to these functions are 1 to 16 upper-case letters A to Z. Where words are numbered, the
// numbers are 0-based and alphabetical, a word before every longer word that begins with it.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace quillet {

constexpr int kMaxWordLength = 15;  // what players type and lists are made of; what the board can hold
constexpr int kMaxGraphDepth = 16;  // a scenario's bonus word may have one letter more
constexpr std::int32_t kMaxEdges = 0x400000;  // a child index has 22 bits
constexpr std::int32_t kBonusEdges = 1600;    // the bonus dict's fixed store

using Word = Text<kMaxGraphDepth>;

// One letter of the graph. Bits 0..21: index of the first child, 0 for none; 22: wordEnd; 23: lastEdge;
// 24..31: the letter's character code.
struct Edge {
    std::uint32_t bits = 0;

    static constexpr std::uint32_t kChildMask = 0x3FFFFF;
    static constexpr std::uint32_t kWordEnd = 0x400000;
    static constexpr std::uint32_t kLastEdge = 0x800000;

    constexpr std::uint32_t child() const { return bits & kChildMask; }
    constexpr bool wordEnd() const { return (bits & kWordEnd) != 0; }
    constexpr bool lastEdge() const { return (bits & kLastEdge) != 0; }
    constexpr char letter() const { return static_cast<char>(bits >> 24); }

    constexpr void SetChild(std::uint32_t index) { bits = (bits & ~kChildMask) | index; }
    constexpr void SetWordEnd(bool on) { bits = on ? bits | kWordEnd : bits & ~kWordEnd; }
    constexpr void SetLastEdge(bool on) { bits = on ? bits | kLastEdge : bits & ~kLastEdge; }

    friend constexpr bool operator==(Edge, Edge) = default;
};
static_assert(sizeof(Edge) == 4);

// What stands before the edges in a word-list file, as it lies in memory. Little-endian.
struct DictPreamble {
    std::uint32_t formatId = 2;
    std::int32_t numwords = 0;
    std::int32_t numedges = 0;
    std::int32_t triesize = 0;           // bytes: always numedges * 4
    std::array<std::int32_t, 26> sum{};  // words by first letter A to Z; adds up to numwords
    std::array<std::uint8_t, 180> reserved{};
};
static_assert(sizeof(DictPreamble) == 300);

struct Dict : DictPreamble {
    std::vector<Edge> edges;  // numedges in use, then spareEdges free ones
    std::int32_t spareEdges = 0;
    bool fixedStore = false;      // the bonus dict's: never enlarged
    std::int32_t numAdded = 0;    // words added since the list was loaded, created or saved
    std::int32_t numDeleted = 0;  // words deleted since then
    // Another number after every change of the words, and never that of another dict; 0 only for a dict that
    // was always empty. Search indexes follow it.
    std::uint32_t revision = 0;

    // Size of the store in bytes.
    std::int32_t storeBytes() const { return triesize + 4 * spareEdges; }
};

inline Dict mainDict;
inline Dict bonusDict;

// Empties the dict and gives it a store for `triesize` bytes of edges: with 20,000 spare edges for an
// empty list, 200 otherwise. The edges are all zero; the caller fills them. Fatal when memory is short.
void MakeStore(Dict& dict, std::int32_t triesize);

// Gives the bonus dict its fixed store of 1,600 edges, empty. Fatal when memory is short.
void MakeBonusStore(Dict& dict);

// Puts a whole new list, read or built elsewhere, in the place of the dict's. The change counters are zero.
void InstallDict(Dict& dict, Dict&& contents);

// 1 to 16 upper-case letters A to Z.
bool IsProperWord(std::string_view text);

bool IsWord(const Dict& dict, std::string_view word);

// IsWord on the bonus dict.
bool IsBonusWord(std::string_view word);

// True when the word is in the list afterwards; false when it could not be added (a warning has been
// shown, the list is as it was).
bool AddWord(Dict& dict, std::string_view word);

// Removes the word; does nothing when it is not in the list.
void DeleteWord(Dict& dict, std::string_view word);

// The word with that number; the empty word when the list is empty. Fatal when n is numwords or more.
Word GetWord(const Dict& dict, std::int32_t n);

// The number of the word, or of a neighbour when it is not in the list; 0 on an empty list.
std::int32_t FindWordIndex(const Dict& dict, std::string_view word);

// Replaces a word of the list by the next (direction > 0) or the previous one. Beeps and changes nothing
// when the word is not in the list. Never asked to step back from word 0 or on from the last word (Fatal).
void StepWord(const Dict& dict, int direction, Word& word);

// True when the main dict holds the word, or the player lets it be added (asked with No as the default).
bool AskToAddWord(std::string_view word);

// Words were added or deleted since the list was loaded, created or saved.
bool DictChanged(const Dict& dict);

}  // namespace quillet
