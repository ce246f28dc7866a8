#include "words/word_index.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace quillet {
namespace {

// The SplitMix64 generator (Steele, Lea and Flood 2014).
constexpr std::array<LetterKey, 26> MakeLetterKeys() {
    std::array<LetterKey, 26> keys{};
    std::uint64_t state = 0x9E3779B97F4A7C15;
    for (LetterKey& key : keys) {
        std::uint64_t z = state += 0x9E3779B97F4A7C15;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
        key = z ^ (z >> 31);
    }
    return keys;
}

using WordsByLength = std::array<std::vector<KeyedWord>, kMaxWordLength + 1>;

// Every word that fits on the board, with its key.
WordsByLength KeyedWords(const Dict& dict) {
    WordsByLength words;
    if (dict.numwords <= 0) return words;
    std::array<std::uint32_t, kMaxGraphDepth> edgeAt{};
    std::array<LetterKey, kMaxGraphDepth + 1> keyBefore{};
    KeyedWord word{};
    int depth = 0;
    for (;;) {
        const Edge edge = dict.edges[edgeAt[depth]];
        word.letters[depth] = edge.letter();
        word.key = keyBefore[depth] + KeyOf(edge.letter());
        if (edge.wordEnd() && depth < kMaxWordLength) words[depth + 1].push_back(word);
        if (edge.child() != 0 && depth + 1 < kMaxGraphDepth) {
            keyBefore[depth + 1] = word.key;
            edgeAt[++depth] = edge.child();
            continue;
        }
        while (depth >= 0 && dict.edges[edgeAt[depth]].lastEdge()) --depth;
        if (depth < 0) return words;
        ++edgeAt[depth];
    }
}

// Sorts by key, by way of a bucket for each value of the bits above `shift`; `starts` becomes the number of
// the first word of each bucket, and of all words in the end.
std::vector<KeyedWord> SortedByKey(const std::vector<KeyedWord>& words, int shift,
                                   std::vector<std::uint32_t>& starts) {
    const std::size_t buckets = std::size_t{1} << (64 - shift);
    starts.assign(buckets + 2, 0);  // counted two places up, so that filling leaves them where they belong
    for (const KeyedWord& word : words) ++starts[(word.key >> shift) + 2];
    for (std::size_t i = 2; i < starts.size(); ++i) starts[i] += starts[i - 1];
    std::vector<KeyedWord> sorted(words.size());
    for (const KeyedWord& word : words) sorted[starts[(word.key >> shift) + 1]++] = word;
    starts.pop_back();
    for (std::size_t i = 0; i < buckets; ++i) {
        if (starts[i + 1] - starts[i] < 2) continue;
        std::sort(sorted.begin() + starts[i], sorted.begin() + starts[i + 1],
                  [](const KeyedWord& a, const KeyedWord& b) { return a.key < b.key; });
    }
    return sorted;
}

}  // namespace

constinit const std::array<LetterKey, 26> kLetterKeys = MakeLetterKeys();

LetterKey KeyOfWord(std::string_view letters) {
    LetterKey key = 0;
    for (char letter : letters) key += KeyOf(letter);
    return key;
}

void WordIndex::Update(const Dict& dict) {
    if (IsOf(dict)) return;
    const WordsByLength words = KeyedWords(dict);
    for (std::size_t length = 1; length < lengths.size(); ++length)
        lengths[length].Fill(length, words[length]);
    revision = dict.revision;
}

void LengthIndex::Fill(std::size_t length, const std::vector<KeyedWord>& unsorted) {
    // About one word for each bucket, and 16 to 32 bits of the filter for each word.
    const std::size_t buckets = std::bit_ceil(std::max<std::size_t>(unsorted.size(), 2));
    bucketShift = 64 - std::countr_zero(buckets);
    filterMask = std::max<std::size_t>(buckets / 4, 1) - 1;
    filter.assign(filterMask + 1, 0);
    stride = length + 1;
    words.resize(unsorted.size() * stride);
    const std::vector<KeyedWord> sorted = SortedByKey(unsorted, bucketShift, bucketStarts);
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        char* word = words.data() + i * stride;
        word[0] = CheckOf(sorted[i].key);
        std::memcpy(word + 1, sorted[i].letters.data(), length);
        filter[sorted[i].key & filterMask] |= FilterBits(sorted[i].key);
    }
}

bool WordIndex::Contains(std::string_view word, LetterKey key) const {
    const LengthIndex& index = lengths[word.size()];
    if (!index.MayContain(key)) return false;
    const FoundWords found = index.Find(key);
    for (std::uint32_t i = 0; i < found.count; ++i) {
        const char* letters = found.letters + i * index.Stride();
        std::size_t same = 0;
        while (same < word.size() && letters[same] == word[same]) ++same;
        if (same == word.size()) return true;
    }
    return false;
}

std::size_t LengthIndex::MemoryBytes() const {
    return filter.size() * sizeof(filter[0]) + bucketStarts.size() * sizeof(bucketStarts[0]) + words.size();
}

std::size_t WordIndex::MemoryBytes() const {
    std::size_t bytes = 0;
    for (const LengthIndex& index : lengths) bytes += index.MemoryBytes();
    return bytes;
}

}  // namespace quillet
