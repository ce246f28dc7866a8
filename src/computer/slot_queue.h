// The slots of a search, the best bound first.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace quillet {

// A bucket for each bound from 0 to kHighest; bounds beyond share the end buckets, where their order is
// lost. Pushing and popping take constant time, which a heap does not.
class SlotQueue {
  public:
    static constexpr std::size_t kMaxSlots = 8192;

    void Clear() { occupied.fill(0); }
    bool IsEmpty() const {
        return std::ranges::all_of(occupied, [](std::uint64_t word) { return word == 0; });
    }

    // No slot in the queue has a higher bound; the lowest number when it is empty.
    std::int32_t HighestBound() const {
        const int bucket = HighestBucket();
        if (bucket == kHighest) return INT32_MAX;
        return bucket < 0 ? INT32_MIN : bucket;
    }

    void Push(std::uint16_t slot, std::int32_t bound) {
        const auto bucket = static_cast<std::size_t>(std::clamp(bound, 0, kHighest));
        std::uint64_t& word = occupied[bucket / 64];
        const std::uint64_t bit = std::uint64_t{1} << bucket % 64;
        next[slot] = (word & bit) != 0 ? heads[bucket] : kNone;
        heads[bucket] = slot;
        word |= bit;
    }

    // The queue must not be empty.
    std::uint16_t Pop() {
        const auto bucket = static_cast<std::size_t>(HighestBucket());
        const std::uint16_t slot = heads[bucket];
        heads[bucket] = next[slot];
        if (next[slot] == kNone) occupied[bucket / 64] &= ~(std::uint64_t{1} << bucket % 64);
        return slot;
    }

  private:
    static constexpr int kHighest = 511;
    static constexpr std::uint16_t kNone = UINT16_MAX;

    int HighestBucket() const {
        for (std::size_t i = occupied.size(); i-- > 0;) {
            if (occupied[i] != 0) return static_cast<int>(i * 64) + 63 - std::countl_zero(occupied[i]);
        }
        return -1;
    }

    std::array<std::uint64_t, (kHighest + 1) / 64> occupied{};
    std::array<std::uint16_t, kHighest + 1> heads;
    std::array<std::uint16_t, kMaxSlots> next;
};

}  // namespace quillet
