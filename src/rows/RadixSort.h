// SPDX-License-Identifier: MIT
#pragma once

#include "rows/SortProgress.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

// A number with its sort key, packed: 8 bytes with a 32-bit key, 12 with a 64-bit key.
template <typename Key>
struct Keyed {
    // NOLINTNEXTLINE(bugprone-sizeof-expression): a key may be one such word
    std::array<std::uint32_t, sizeof(Key) / sizeof(std::uint32_t)> KeyWords;
    std::uint32_t Number;

    Key SortKey() const { return std::bit_cast<Key>(KeyWords); }
    void SetSortKey(Key key) { KeyWords = std::bit_cast<decltype(KeyWords)>(key); }
};

namespace RadixSortDetail {

// Sorts by one digit after the other, from the lowest on; skips a digit that is the same in all keys.
template <unsigned DigitBits, typename Item, typename KeyOf>
bool SortDigits(std::span<Item>& items, std::span<Item>& scratch, KeyOf keyOf, SortProgress& progress) {
    using Key = decltype(keyOf(items[0]));
    constexpr std::size_t Buckets = std::size_t{1} << DigitBits;
    constexpr unsigned Digits = (sizeof(Key) * 8 + DigitBits - 1) / DigitBits;
    const auto digitOf = [](Key key, unsigned digit) { return key >> (digit * DigitBits) & (Buckets - 1); };

    std::vector<std::array<std::uint32_t, Buckets>> places(Digits); // first the counts, then the targets
    if (!progress.ForEach(0, items.size(), [&](std::size_t i) {
            const Key key = keyOf(items[i]);
            for (unsigned digit = 0; digit < Digits; ++digit)
                ++places[digit][digitOf(key, digit)];
        }))
        return false;

    for (unsigned digit = 0; digit < Digits; ++digit) {
        std::array<std::uint32_t, Buckets>& place = places[digit];
        if (place[digitOf(keyOf(items[0]), digit)] == items.size())
            continue;
        std::uint32_t sum = 0;
        for (std::uint32_t& bucket : place)
            sum += std::exchange(bucket, sum);
        if (!progress.ForEach(0, items.size(), [&](std::size_t i) {
                scratch[place[digitOf(keyOf(items[i]), digit)]++] = items[i];
            }))
            return false;
        std::swap(items, scratch);
    }
    return true;
}

} // namespace RadixSortDetail

// Sorts items by an unsigned key, ascending and stably, in time linear in their number, which must be below
// 2^32. `scratch` must be as long as `items`; the two may be swapped, and `items` then is where the result
// lies. False when the sort was stopped; the items are then in any order.
template <typename Item, typename KeyOf>
bool RadixSort(std::span<Item>& items, std::span<Item>& scratch, KeyOf keyOf, SortProgress& progress) {
    constexpr std::size_t FewItems = 1U << 16U; // too few to make up for the larger tables of wide digits
    if (items.empty())
        return true;
    return items.size() < FewItems ? RadixSortDetail::SortDigits<8>(items, scratch, keyOf, progress)
                                   : RadixSortDetail::SortDigits<11>(items, scratch, keyOf, progress);
}
