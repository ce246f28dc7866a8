// Tile codes and the tables kept for each of them.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillet {

// "A".."Z" are the letter tiles and "[", the code after "Z", is the blank. On the board only, "1".."6" is
// the content of a blocked picture square. In word texts shown to the player, "?" is a blank that has no
// letter yet.
using LetterCode = char;

constexpr LetterCode kBlank = '[';
constexpr std::size_t kNumLetterCodes = 27;
constexpr std::uint32_t kAllLetters = (1U << 26) - 1;  // a bit for each of A to Z, bit 0 for A

constexpr bool IsLetter(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool IsTileCode(char c) { return c >= 'A' && c <= kBlank; }
constexpr bool IsVowel(char c) { return c == 'A' || c == 'E' || c == 'I' || c == 'O' || c == 'U'; }

// 0 for A .. 25 for Z, 26 for the blank.
constexpr std::size_t LetterIndex(LetterCode code) {
    assert(IsTileCode(code));
    return static_cast<std::size_t>(code - 'A');
}
constexpr std::uint32_t LetterBit(char letter) { return IsLetter(letter) ? 1U << (letter - 'A') : 0; }

// One entry for each of "A".."Z" and "[".
template <typename T>
struct PerLetter {
    std::array<T, kNumLetterCodes> entries{};

    constexpr T& operator[](LetterCode code) { return entries[LetterIndex(code)]; }
    constexpr const T& operator[](LetterCode code) const { return entries[LetterIndex(code)]; }

    friend constexpr bool operator==(const PerLetter&, const PerLetter&) = default;
};

using LetterValues = PerLetter<std::int32_t>;  // points of one tile
using LetterCounts = PerLetter<std::int16_t>;  // tiles in a full bag

// Reads a table text as scenarios and saved games hold it: one character for each code, "0" + the number.
// Codes beyond a short text get 0.
template <typename T>
constexpr PerLetter<T> LetterTableFromText(std::string_view text) {
    PerLetter<T> table;
    for (std::size_t i = 0; i < kNumLetterCodes && i < text.size(); ++i) {
        table.entries[i] = static_cast<T>(static_cast<unsigned char>(text[i]) - '0');
    }
    return table;
}

// The table's text as LetterTableFromText reads it.
template <typename T>
std::string TextFromLetterTable(const PerLetter<T>& table) {
    std::string text;
    for (T number : table.entries) text += static_cast<char>('0' + number);
    return text;
}

}  // namespace quillet
