// Fixed-capacity text: the program's names, words and messages.
//
// Texts are bytes of the program's single-byte character set (Latin-1). What does not fit is cut.
#pragma once

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillet {

// A text of at most N characters, N at most 255.
template <std::size_t N>
class Text {
    static_assert(N <= 255);

  public:
    constexpr Text() = default;
    constexpr Text(std::string_view text) { Append(text); }  // NOLINT: a text reads as what it holds
    constexpr Text(const char* text) : Text(std::string_view(text)) {}  // NOLINT

    constexpr operator std::string_view() const { return {characters.data(), length}; }  // NOLINT
    constexpr std::string_view View() const { return *this; }
    constexpr std::size_t size() const { return length; }
    constexpr bool empty() const { return length == 0; }
    static constexpr std::size_t capacity() { return N; }
    constexpr const char* begin() const { return characters.data(); }
    constexpr const char* end() const { return characters.data() + length; }

    constexpr char operator[](std::size_t i) const {
        assert(i < length);
        return characters[i];
    }
    constexpr char& operator[](std::size_t i) {
        assert(i < length);
        return characters[i];
    }

    constexpr void Clear() { length = 0; }
    constexpr void Append(char character) {
        if (length < N) characters[length++] = character;
    }
    constexpr void Append(std::string_view text) {
        for (char character : text.substr(0, N - length)) characters[length++] = character;
    }
    constexpr void Shorten(std::size_t size) {
        if (size < length) length = static_cast<std::uint8_t>(size);
    }

    friend constexpr bool operator==(const Text& a, const Text& b) { return a.View() == b.View(); }
    friend constexpr bool operator==(const Text& a, std::string_view b) { return a.View() == b; }
    friend constexpr bool operator==(const Text& a, const char* b) { return a.View() == b; }

  private:
    std::array<char, N == 0 ? 1 : N> characters{};
    std::uint8_t length = 0;
};

// A to Z and the accented letters of the character set in upper case; everything else unchanged.
constexpr char ToUpper(char character) {
    const auto code = static_cast<unsigned char>(character);
    const bool lower = (code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7);
    return lower ? static_cast<char>(code - 32) : character;
}

// Compares as names are sorted everywhere: upper-cased characters by their codes, a prefix first.
// Negative, zero or positive.
constexpr int CompareIgnoringCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int difference =
            static_cast<unsigned char>(ToUpper(a[i])) - static_cast<unsigned char>(ToUpper(b[i]));
        if (difference != 0) return difference;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

constexpr bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && CompareIgnoringCase(a, b) == 0;
}

}  // namespace quillet
