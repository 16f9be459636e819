// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

// A yardstick of sorting: a plain radix sort of 64-bit keys with 32-bit row numbers, one digit after the
// other from the lowest on. It skips digits that are the same in all keys, and gets its memory before it
// starts.
template <unsigned DigitBits>
void PlainRadixSort(std::vector<std::pair<std::uint64_t, std::uint32_t>>& items,
                    std::vector<std::pair<std::uint64_t, std::uint32_t>>& scratch) {
    constexpr std::size_t Buckets = std::size_t{1} << DigitBits;
    constexpr unsigned Digits = (64 + DigitBits - 1) / DigitBits;
    static std::array<std::array<std::uint32_t, Buckets>, Digits> places;
    places = {};
    for (const auto& item : items)
        for (unsigned digit = 0; digit < Digits; ++digit)
            ++places[digit][item.first >> (digit * DigitBits) & (Buckets - 1)];
    for (unsigned digit = 0; digit < Digits; ++digit) {
        const unsigned shift = digit * DigitBits;
        auto& place = places[digit];
        if (place[items[0].first >> shift & (Buckets - 1)] == items.size())
            continue;
        std::uint32_t sum = 0;
        for (std::uint32_t& bucket : place)
            sum += std::exchange(bucket, sum);
        for (const auto& item : items)
            scratch[place[item.first >> shift & (Buckets - 1)]++] = item;
        items.swap(scratch);
    }
}
