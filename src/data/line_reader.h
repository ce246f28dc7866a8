// Reads the program's text files of "key = value" lines: saved games and statistics. Keys are not looked
// at; the order of the lines tells what they are. Lines that begin with "%" are comments.
//
// The first fault is reported, with its line's number, and thrown as BadFile: whoever reads the file
// catches it and gives the file up.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/text.h"
#include "store/files.h"

namespace quillet {

struct BadFile {};

class LineReader {
  public:
    // `source` is what messages call the file.
    LineReader(FileRef openFile, std::string_view source) : file(std::move(openFile)), name(source) {}

    // Goes to the value of the next line that is no comment. Every line begun is ended with EndLine, which
    // skips what is left of it.
    void BeginLine();
    void EndLine();
    bool AtLineEnd() const;

    // The next word: up to a blank or the line's end, or between double quotes. What is beyond N
    // characters is skipped.
    template <std::size_t N>
    Text<N> ReadWord() {
        return std::string_view(ReadWord(N));
    }
    std::int32_t ReadInteger();
    std::uint16_t ReadCardinal();

    // That many characters as they stand.
    std::string ReadCharacters(std::size_t count);

    // By its first letter, "T" or "F" in either case.
    bool ReadBoolean();

    // Reports "<message><line number> of <source>" and throws.
    [[noreturn]] void Fail(std::string_view message) const;

  private:
    std::string ReadWord(std::size_t capacity);
    void Advance();
    void SkipBlanks();

    FileRef file;
    std::string name;
    int line = 0;
    char next = '\r';  // the character to be read next; a carriage return ends the line
};

}  // namespace quillet
