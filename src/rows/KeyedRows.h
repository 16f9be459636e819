// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/RadixSort.h"
#include "rows/SortDirection.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <memory>
#include <span>

// The part of the remaining way that a phase of a sort takes, in percent.
inline constexpr int KeysPart = 30;
inline constexpr int OrderPart = 85;

// A row as a number to sort.
inline std::uint32_t Packed(LogbookRow row) { return std::bit_cast<std::uint32_t>(row); }
inline LogbookRow Unpacked(std::uint32_t number) { return std::bit_cast<LogbookRow>(number); }

// Whether it is quicker to fetch something for all entries in their order than for the rows in theirs: when
// the rows are most of the entries and not in entry order.
inline bool AreFetchedInOrder(const EntryTable& entries, const LogbookRows& rows) {
    return rows.size() > entries.Count() / 2 &&
           !std::is_sorted(rows.begin(), rows.end(),
                           [](const LogbookRow& a, const LogbookRow& b) { return a.Entry < b.Entry; });
}

// Turns the `count` numbers back into rows and appends these to `sorted`.
template <typename Numbers>
bool TakeRows(const Numbers& numbers, std::size_t count, LogbookRows& sorted, SortProgress& progress) {
    progress.BeginPhase(100, count);
    sorted.reserve(sorted.size() + count);
    return progress.ForEach(0, count, [&](std::size_t i) { sorted.push_back(Unpacked(numbers[i])); });
}

// Sorts rows by a key made from each row's entry; rows with the same key keep their order in either
// direction. Takes at most 24 bytes a row with keys of 32 bits, 28 with keys of 64 bits.
template <typename Key>
class KeyedRows {
  public:
    KeyedRows(std::size_t count, SortDirection direction)
        : first_(std::make_unique_for_overwrite<Item[]>(count)),
          items_(first_.get(), count),
          flip_(direction == SortDirection::Descending ? static_cast<Key>(~Key{0}) : Key{0}) {}

    // `keyOf` makes a key from an entry number. Fetch and Sort return false when the sort was stopped.
    template <typename KeyOf>
    bool Fetch(const EntryTable& entries, const LogbookRows& rows, KeyOf keyOf, SortProgress& progress) {
        const auto put = [&](std::size_t i, Key key) {
            items_[i].SetSortKey(key ^ flip_);
            items_[i].Number = Packed(rows[i]);
        };
        if (!AreFetchedInOrder(entries, rows)) {
            progress.BeginPhase(KeysPart, rows.size());
            return progress.ForEach(0, rows.size(), [&](std::size_t i) { put(i, keyOf(rows[i].Entry)); });
        }
        const std::size_t count = entries.Count();
        const auto keys = std::make_unique_for_overwrite<Key[]>(count);
        progress.BeginPhase(KeysPart, count + rows.size());
        return progress.ForEach(0, count, [&](std::size_t i) {
            keys[i] = keyOf(static_cast<EntryNumber>(i));
        }) && progress.ForEach(0, rows.size(), [&](std::size_t i) { put(i, keys[rows[i].Entry]); });
    }

    bool Sort(LogbookRows& sorted, SortProgress& progress) {
        auto second = std::make_unique_for_overwrite<Item[]>(items_.size());
        std::span<Item> scratch(second.get(), items_.size());
        progress.BeginPhase(OrderPart, items_.size() * sizeof(Key));
        if (!RadixSort(
                items_, scratch, [](const Item& item) { return item.SortKey(); }, progress))
            return false;
        (items_.data() == first_.get() ? second : first_).reset();
        return TakeRows(*this, items_.size(), sorted, progress);
    }

    std::uint32_t operator[](std::size_t place) const { return items_[place].Number; }

  private:
    using Item = Keyed<Key>;

    std::unique_ptr<Item[]> first_;
    std::span<Item> items_;
    Key flip_;
};
