#include "data/line_reader.h"

#include <cassert>
#include <limits>

#include "base/messages.h"
#include "store/numbers.h"

namespace quillet {
namespace {

constexpr char kLineEnd = '\r';
constexpr char kQuote = '"';
constexpr char kStoredQuote = '\1';  // stands for a double quote within a word
constexpr std::size_t kLongestNumber = 31;

bool IsBlank(char character) { return character == ' ' || character == '\t'; }

}  // namespace

void LineReader::BeginLine() {
    assert(AtLineEnd());
    for (;;) {
        ++line;
        Advance();
        if (next != '%') break;
        EndLine();
    }
    while (next != '=') {
        if (AtLineEnd()) Fail("Missing \"=\" sign on line ");
        Advance();
    }
    Advance();
    SkipBlanks();
}

void LineReader::EndLine() {
    while (!AtLineEnd()) Advance();
}

bool LineReader::AtLineEnd() const { return next == kLineEnd; }

std::string LineReader::ReadWord(std::size_t capacity) {
    const bool quoted = next == kQuote;
    if (quoted) Advance();
    std::string word;
    while (quoted ? next != kQuote : !IsBlank(next) && !AtLineEnd()) {
        if (AtLineEnd()) Fail("Missing end quote on line ");
        if (word.size() < capacity) word += next == kStoredQuote ? kQuote : next;
        Advance();
    }
    if (quoted) Advance();
    SkipBlanks();
    return word;
}

std::int32_t LineReader::ReadInteger() {
    const auto value = ParseInteger(ReadWord(kLongestNumber));
    if (!value) Fail("Bad integer on line ");
    return *value;
}

std::uint16_t LineReader::ReadCardinal() {
    const auto value = ParseInteger(ReadWord(kLongestNumber));
    if (!value || *value < 0 || *value > std::numeric_limits<std::uint16_t>::max()) {
        Fail("Bad cardinal on line ");
    }
    return static_cast<std::uint16_t>(*value);
}

std::string LineReader::ReadCharacters(std::size_t count) {
    std::string characters;
    while (characters.size() < count) {
        characters += next;
        Advance();
    }
    return characters;
}

bool LineReader::ReadBoolean() {
    const char first = ToUpper(next);
    if (first != 'T' && first != 'F') Fail("Bad boolean on line ");
    return first == 'T';
}

void LineReader::Fail(std::string_view message) const {
    Warning(message, std::to_string(line), " of ", name);
    throw BadFile{};
}

void LineReader::Advance() {
    if (ReadChar(*file, next)) return;
    Warning("Unexpected end to file: ", name);
    throw BadFile{};
}

void LineReader::SkipBlanks() {
    while (IsBlank(next)) Advance();
}

}  // namespace quillet
