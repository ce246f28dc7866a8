// An index of a word list by the letters that words consist of, whatever their order: does any word use
// exactly these letters, and which? The move search asks it instead of walking the graph.
//
// A multiset of letters is known by its key, the sum of one fixed random 64-bit number for each letter, so
// that keys of parts add up. Most multisets make no word: a small filter (after Bloom 1970) says so at the
// cost of one read. Words of different lengths are kept apart, so that a search, which asks mostly for
// short words, touches little memory. Two multisets could share a key, so whoever uses a word found must
// check its letters.
//
// About 5 MB for 236,000 words.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "words/dict.h"

namespace quillet {

using LetterKey = std::uint64_t;

// The number of each letter A..Z.
extern const std::array<LetterKey, 26> kLetterKeys;

inline LetterKey KeyOf(char letter) { return kLetterKeys[static_cast<std::size_t>(letter - 'A')]; }

LetterKey KeyOfWord(std::string_view letters);

// A word with its key; what lies behind the word's own length is meaningless.
struct KeyedWord {
    LetterKey key;
    std::array<char, kMaxGraphDepth> letters;
};

// Words that share a key: `count` of them, each `stride` bytes after the one before.
struct FoundWords {
    const char* letters = nullptr;
    std::uint32_t count = 0;
};

// The words of one length.
class LengthIndex {
  public:
    // False when no word has a multiset of that key; true may be wrong now and then.
    bool MayContain(LetterKey key) const {
        const std::uint64_t bits = FilterBits(key);
        return (filter[key & filterMask] & bits) == bits;
    }

    // The words of that key: the same letters in different orders, and now and then others.
    FoundWords Find(LetterKey key) const {
        const std::size_t bucket = key >> bucketShift;
        const char* word = words.data() + bucketStarts[bucket] * stride;
        const char* const end = words.data() + bucketStarts[bucket + 1] * stride;
        const char check = CheckOf(key);
        while (word < end && word[0] != check) word += stride;
        FoundWords found{word + 1, 0};
        for (; word < end && word[0] == check; word += stride) ++found.count;
        return found;
    }

    std::size_t Stride() const { return stride; }

    // Replaces everything by these words, all of that length.
    void Fill(std::size_t length, const std::vector<KeyedWord>& unsorted);

    std::size_t MemoryBytes() const;

  private:
    // The bits below those of the bucket, so that equal ones stand together.
    char CheckOf(LetterKey key) const { return static_cast<char>(key >> (bucketShift - 8)); }
    // A key sets two bits of one word of the filter.
    static constexpr std::uint64_t FilterBits(LetterKey key) {
        return std::uint64_t{1} << (key >> 26 & 63) | std::uint64_t{1} << (key >> 20 & 63);
    }

    std::vector<std::uint64_t> filter = {0};
    std::uint64_t filterMask = 0;
    int bucketShift = 63;
    std::vector<std::uint32_t> bucketStarts = {0, 0, 0};  // numbers of words; one more than there are buckets
    std::size_t stride = 1;
    // Sorted by key, whose highest bits are the bucket. Each word is a check byte and its letters.
    std::vector<char> words;
};

class WordIndex {
  public:
    // Follows the dict: makes the index anew when the dict's words have changed since the last call.
    void Update(const Dict& dict);

    bool IsOf(const Dict& dict) const { return revision == dict.revision; }

    // length is 1..15.
    const LengthIndex& OfLength(std::size_t length) const { return lengths[length]; }

    // Exactly this word (its key being `key`) is in the list.
    bool Contains(std::string_view word, LetterKey key) const;

    std::size_t MemoryBytes() const;

  private:
    std::uint32_t revision = 0;
    std::array<LengthIndex, kMaxWordLength + 1> lengths;
};

}  // namespace quillet
