// A square of the board.
#pragma once

#include <cstdint>

namespace quillet {

// 1-based; rows grow downwards.
struct BoardPosition {
    std::int16_t row = 0;
    std::int16_t col = 0;

    friend constexpr bool operator==(const BoardPosition&, const BoardPosition&) = default;
};

}  // namespace quillet
