// Numbers as the program's text files hold them.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace quillet {

// Leading spaces, an optional "+" or "-", then digits to the end of the text. None when anything else
// follows, when there is no digit, or when the value does not fit.
constexpr std::optional<std::int32_t> ParseInteger(std::string_view text) {
    using Limits = std::numeric_limits<std::int32_t>;
    while (text.starts_with(' ')) text.remove_prefix(1);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    if (text.empty()) return std::nullopt;
    std::int64_t value = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') return std::nullopt;
        value = value * 10 + (digit - '0');
        if (value > -std::int64_t{Limits::min()}) return std::nullopt;
    }
    if (negative) value = -value;
    if (value > Limits::max()) return std::nullopt;
    return static_cast<std::int32_t>(value);
}

}  // namespace quillet
