#include "words/definitions.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "base/messages.h"
#include "platform/message_box.h"
#include "resources/strings.h"
#include "store/files.h"

namespace quillet {
namespace {

constexpr std::string_view kEmptyWord = "Type in a word and click on the Define button.";
constexpr std::uint32_t kMostBytes = 64 << 20;  // of a file: one that is larger is no file of definitions
constexpr std::string_view kNoMemory = "Not enough memory to load definitions!";
constexpr std::string_view kNotReadable = "Could not read definitions!";
constexpr std::string_view kNotFound =
    "Sorry, no definition found.\r\r"
    "Note:  This does not mean the word doesn't exist."
    "  The Definitions folder only has about 20,000 words and"
    " some of the word lists available for Quillet have many"
    " more words than that.";

// --- The file ---

FilePath PathForLetter(char letter) {
    FilePath path(ResourceString(StringId::DefinitionsFolder));
    path.Append('\\');
    path.Append(letter);
    path.Append(".txt");
    return path;
}

// The whole file; empty, with the reason in `problem`, when it cannot be had.
std::string ReadWhole(FileRef file, std::string_view& problem) {
    std::string contents;
    const std::uint32_t size = FileSize(*file);
    try {
        if (size > kMostBytes) throw std::bad_alloc();
        contents.resize(size);
    } catch (const std::bad_alloc&) {
        problem = kNoMemory;
        return contents;
    }
    if (!ReadBlock(*file, std::as_writable_bytes(std::span(contents)))) {
        problem = kNotReadable;
        contents.clear();
    }
    CloseFile(std::move(file));
    return contents;
}

// --- The search ---

enum class Order { Before, Match, After };

// Where a line stands as seen from a word. The end of the word counts as lower than any character.
Order OrderOf(std::string_view line, std::string_view word) {
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (i == line.size()) return Order::Before;
        const auto inLine = static_cast<unsigned char>(ToUpper(line[i]));
        const auto inWord = static_cast<unsigned char>(ToUpper(word[i]));
        if (inLine != inWord) return inLine < inWord ? Order::Before : Order::After;
    }
    return line.substr(word.size()).starts_with(' ') ? Order::Match : Order::After;
}

// What the line of that word says about it. Binary search over byte positions: lines begin behind a line
// feed and end at a carriage return. The range shrinks by half in each round whatever the file holds.
std::optional<std::string_view> FindLine(std::string_view contents, std::string_view word) {
    std::size_t low = 0;
    std::size_t high = contents.size();
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        const std::size_t lineFeed = contents.rfind('\n', middle);
        const std::size_t begin = lineFeed == std::string_view::npos ? 0 : lineFeed + 1;
        const std::size_t end = std::min(contents.find_first_of("\r\n", begin), contents.size());
        std::string_view line = contents.substr(begin, end - begin);
        switch (OrderOf(line, word)) {
            case Order::Before:
                low = std::max(middle, end) + 1;
                break;
            case Order::After:
                high = begin == 0 ? 0 : lineFeed;
                break;
            case Order::Match:
                line.remove_prefix(word.size());
                line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
                return line;
        }
    }
    return std::nullopt;
}

// --- Inflections ---

enum class Stem { Any, EndsDoubled, VowelBeforeLast };

// One guess at the base form: without the last `drop` letters, with `add` in their place.
struct Guess {
    std::size_t drop = 0;   // 0: no guess
    char add = 0;           // 0: nothing
    Stem stem = Stem::Any;  // what must stand before the ending
};

struct Inflection {
    std::string_view ending;
    std::size_t longerThan;  // letters the whole word must exceed
    std::array<Guess, 3> guesses;
};

// The first one that fits is the only one tried, its guesses in order.
constexpr std::array kInflections{
    Inflection{"IES", 5, {Guess{1}, Guess{3, 'Y'}}},
    Inflection{"ES", 4, {Guess{1}, Guess{2}}},
    Inflection{"S", 2, {Guess{1}}},
    Inflection{"IED", 3, {Guess{1}, Guess{3, 'Y'}}},
    Inflection{"ED", 4, {Guess{1}, Guess{2}, Guess{3, 0, Stem::EndsDoubled}}},
    Inflection{"ED", 3, {Guess{1}, Guess{2}}},
    Inflection{"IER", 5, {Guess{3, 'Y'}}},
    Inflection{"ER", 4, {Guess{1}, Guess{2}}},
    Inflection{"IEST", 6, {Guess{4, 'Y'}}},
    Inflection{"EST", 5, {Guess{2}, Guess{3}}},
    Inflection{"ING", 5, {Guess{3}, Guess{4, 0, Stem::EndsDoubled}, Guess{3, 'E', Stem::VowelBeforeLast}}},
    Inflection{"LY", 4, {Guess{1}, Guess{2}}},
    Inflection{"Y", 4, {Guess{1}}},
};

bool Fits(const Inflection& inflection, std::string_view word) {
    const std::size_t length = inflection.ending.size();
    return word.size() > inflection.longerThan &&
           EqualIgnoringCase(word.substr(word.size() - length), inflection.ending);
}

// The stem is what stands before the ending; every inflection that asks leaves it two letters or more.
bool Is(Stem kind, std::string_view stem) {
    if (kind == Stem::Any) return true;
    const char last = ToUpper(stem[stem.size() - 1]);
    const char beforeLast = ToUpper(stem[stem.size() - 2]);
    if (kind == Stem::EndsDoubled) return last == beforeLast;
    return last != beforeLast && std::string_view("AEIOU").find(beforeLast) != std::string_view::npos;
}

TypedWord Apply(const Guess& guess, TypedWord word) {
    word.Shorten(word.size() - guess.drop);
    if (guess.add == 0) return word;
    const char before = word[word.size() - 1];
    const bool lower = ToUpper(before) != before;
    word.Append(lower ? static_cast<char>(guess.add + ('a' - 'A')) : guess.add);
    return word;
}

// Finds the word or its base form; the word then stands as it was found.
std::optional<std::string_view> FindWordOrBaseForm(std::string_view contents, TypedWord& word) {
    if (const auto line = FindLine(contents, word)) return line;
    const auto inflection =
        std::ranges::find_if(kInflections, [&](const Inflection& each) { return Fits(each, word); });
    if (inflection == kInflections.end()) return std::nullopt;
    const std::string_view stem = word.View().substr(0, word.size() - inflection->ending.size());
    for (const Guess& guess : inflection->guesses) {
        if (guess.drop == 0 || !Is(guess.stem, stem)) continue;
        const TypedWord base = Apply(guess, word);
        if (const auto line = FindLine(contents, base)) {
            word = base;
            return line;
        }
    }
    return std::nullopt;
}

}  // namespace

bool DefinitionsFolderExists() {
    const std::string_view folder = ResourceString(StringId::DefinitionsFolder);
    if (FolderExists(folder)) return true;
    Warning("Sorry, the ", folder, " folder is missing.");
    return false;
}

Definition LookUpDefinition(std::string_view typed) {
    Definition result;
    result.word = typed;
    if (typed.empty()) {
        result.text = kEmptyWord;
        return result;
    }
    const char letter = ToUpper(typed[0]);
    FileRef file = OpenForReading(PathForLetter(letter));
    if (!file) {
        result.text = "No definitions for any words starting with \"";
        result.text.Append(letter);
        result.text.Append("\".");
        Beep();
        return result;
    }
    std::string_view problem;
    const std::string contents = ReadWhole(std::move(file), problem);
    if (!problem.empty()) {
        result.text = problem;
        Beep();
        return result;
    }
    const auto line = FindWordOrBaseForm(contents, result.word);
    result.found = line.has_value();
    result.text = line.value_or(kNotFound);
    if (line && line->size() > result.text.capacity()) result.text[result.text.capacity() - 1] = ' ';
    return result;
}

}  // namespace quillet
