// An array whose elements are numbered from 1, as players, rack positions and moves are.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>

namespace quillet {

template <typename T, std::size_t N>
struct OneBased {
    std::array<T, N> entries{};

    // i is 1..N.
    template <typename Index>
    constexpr T& operator[](Index i) {
        assert(i >= 1 && static_cast<std::size_t>(i) <= N);
        return entries[static_cast<std::size_t>(i) - 1];
    }
    template <typename Index>
    constexpr const T& operator[](Index i) const {
        assert(i >= 1 && static_cast<std::size_t>(i) <= N);
        return entries[static_cast<std::size_t>(i) - 1];
    }
    static constexpr std::size_t size() { return N; }
    constexpr auto begin() { return entries.begin(); }
    constexpr auto end() { return entries.end(); }
    constexpr auto begin() const { return entries.begin(); }
    constexpr auto end() const { return entries.end(); }

    friend constexpr bool operator==(const OneBased&, const OneBased&) = default;
};

}  // namespace quillet
