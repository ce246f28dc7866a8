#include "words/word_list_builder.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <span>
#include <utility>

#include "base/messages.h"
#include "words/edge_path.h"

namespace quillet {
namespace {

// A word as a number that sorts as words do: 5 bits a letter from the top, A = 1, 0 behind the last.
struct Key {
    static constexpr unsigned kLettersInHigh = 12;

    std::uint64_t high = 0;  // the first 12 letters, in the lower 60 bits
    std::uint64_t low = 0;   // the other 4, likewise from bit 59 down

    friend constexpr auto operator<=>(const Key&, const Key&) = default;

    static constexpr unsigned Shift(unsigned place) { return 55 - 5 * (place % kLettersInHigh); }

    // The letter at that place, 1 to 26; 0 behind the word's end.
    unsigned Letter(unsigned place) const {
        const std::uint64_t half = place < kLettersInHigh ? high : low;
        return static_cast<unsigned>(half >> Shift(place) & 31);
    }
    void SetLetter(unsigned place, unsigned letter) {
        (place < kLettersInHigh ? high : low) |= std::uint64_t{letter} << Shift(place);
    }
};

Key KeyOf(std::string_view word) {
    assert(IsProperWord(word));
    Key key;
    for (unsigned place = 0; place < word.size(); ++place) {
        key.SetLetter(place, static_cast<unsigned>(word[place] - 'A' + 1));
    }
    return key;
}

// The words' keys in order, each once. Dealt out by their first three letters, the rest is short work.
std::vector<Key> SortedKeys(const std::vector<Word>& words) {
    constexpr unsigned kBucketShift = 45;
    std::vector<std::uint32_t> ends(1U << 15);  // of each bucket; while dealing, its next free place
    std::vector<Key> unsorted(words.size());
    std::ranges::transform(words, unsorted.begin(), [](const Word& word) { return KeyOf(word); });
    for (const Key& key : unsorted) ++ends[key.high >> kBucketShift];
    for (std::uint32_t sum = 0; std::uint32_t & end : ends) sum += std::exchange(end, sum);
    std::vector<Key> keys(words.size());
    for (const Key& key : unsorted) keys[ends[key.high >> kBucketShift]++] = key;
    for (auto begin = keys.begin(); const std::uint32_t end : ends) {
        std::sort(begin, keys.begin() + end);
        begin = keys.begin() + end;
    }
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    return keys;
}

unsigned LengthOf(const Key& key) {
    const auto filled = [](std::uint64_t bits) {
        return bits == 0 ? 0U : (60 - static_cast<unsigned>(std::countr_zero(bits)) + 4) / 5;
    };
    return key.low != 0 ? Key::kLettersInHigh + filled(key.low) : filled(key.high);
}

unsigned SharedLetters(const Key& a, const Key& b) {
    unsigned place = 0;
    while (place < kMaxGraphDepth && a.Letter(place) == b.Letter(place)) ++place;
    return place;
}

// The edges that a graph of these words has: each word adds the letters that it does not share with the
// one before it.
std::size_t CountEdgesOf(std::span<const Key> keys) {
    std::size_t count = 0;
    Key previous;
    for (const Key& key : keys) {
        count += LengthOf(key) - SharedLetters(previous, key);
        previous = key;
    }
    return count;
}

// Writes the graph list by list, each followed by all that hangs from it: a walk depth first runs mostly
// straight through memory.
struct GraphWriter {
    std::vector<Edge>& edges;
    std::uint32_t used = 0;

    // The list of the letters at that place of the words, which share all letters before it and are longer.
    void WriteList(std::span<const Key> words, unsigned place) {
        std::array<std::size_t, 27> begins;
        std::size_t letters = 0;
        const std::uint32_t first = used;
        for (std::size_t i = 0; i < words.size(); ++letters) {
            const unsigned letter = words[i].Letter(place);
            begins[letters] = i;
            edges[used++].bits = static_cast<std::uint32_t>('A' - 1 + letter) << 24;
            while (++i < words.size() && words[i].Letter(place) == letter) continue;
        }
        begins[letters] = words.size();
        edges[used - 1].SetLastEdge(true);
        for (std::size_t k = 0; k < letters; ++k) {
            Edge& edge = edges[first + k];
            auto below = words.subspan(begins[k], begins[k + 1] - begins[k]);
            if (place + 1 == kMaxGraphDepth || below.front().Letter(place + 1) == 0) {
                edge.SetWordEnd(true);
                below = below.subspan(1);
            }
            if (below.empty()) continue;
            edge.SetChild(used);
            WriteList(below, place + 1);
        }
    }
};

bool IsSeparator(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

}  // namespace

bool BuildDict(Dict& dict, const std::vector<Word>& words) {
    const std::vector<Key> keys = SortedKeys(words);
    const std::size_t edgeCount = CountEdgesOf(keys);
    if (edgeCount > static_cast<std::size_t>(kMaxEdges)) {
        Warning("Too many words!");
        return false;
    }
    Dict built;
    MakeStore(built, static_cast<std::int32_t>(4 * edgeCount));
    if (!keys.empty()) GraphWriter{built.edges}.WriteList(keys, 0);
    built.numwords = static_cast<std::int32_t>(keys.size());
    for (const Key& key : keys) ++built.sum[key.Letter(0) - 1];
    InstallDict(dict, std::move(built));
    return true;
}

std::size_t CountEdges(const std::vector<Word>& words) { return CountEdgesOf(SortedKeys(words)); }

std::vector<Word> WordsOfText(std::string_view text) {
    std::vector<Word> words;
    words.reserve(text.size() / 8);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t start = i;
        bool lettersOnly = true;
        for (; i < text.size() && !IsSeparator(text[i]); ++i) lettersOnly &= text[i] >= 'a' && text[i] <= 'z';
        const std::size_t length = i - start;
        if (!lettersOnly || length == 0 || length > kMaxWordLength) continue;
        Word word;
        for (const char letter : text.substr(start, length)) word.Append(ToUpper(letter));
        words.push_back(word);
    }
    return words;
}

std::string TextOfWords(const Dict& dict) {
    std::string text;
    text.reserve(static_cast<std::size_t>(dict.numwords) * 12);
    VisitWords(dict, [&](const EdgePath& path) {
        for (const char letter : WordAt(dict, path)) text += static_cast<char>(letter + 32);
        text += "\r\n";
        return true;
    });
    return text;
}

}  // namespace quillet
