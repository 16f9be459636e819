// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// A set of entries of a table, one bit an entry. Counting and searching look at 64 entries at a time.
class EntrySet {
  public:
    // Empty, for entries with numbers below `end`.
    explicit EntrySet(EntryNumber end = 0) : end_(end), words_((std::size_t{end} + 63) / 64) {}

    EntryNumber End() const { return end_; }

    // The entries here and below must have numbers below End.
    void Add(EntryNumber entry) { words_[entry / 64] |= BitOf(entry); }
    void Remove(EntryNumber entry) { words_[entry / 64] &= ~BitOf(entry); }
    bool Contains(EntryNumber entry) const { return (words_[entry / 64] & BitOf(entry)) != 0; }

    // How many entries of the set lie from `first` to before `end`, which is at most End.
    std::size_t Count(EntryNumber first, EntryNumber end) const;

    // The first entry of the set from `from` on, or the last one before `before`; nothing when there is none.
    std::optional<EntryNumber> FirstFrom(EntryNumber from) const;
    std::optional<EntryNumber> LastBefore(EntryNumber before) const;

    // The entries of both sets. Their Ends are the same.
    void AddAll(const EntrySet& other);

    // All entries of the set in their order.
    std::vector<EntryNumber> Numbers() const;

    bool operator==(const EntrySet&) const = default;

  private:
    static std::uint64_t BitOf(EntryNumber entry) { return std::uint64_t{1} << (entry % 64U); }

    EntryNumber end_;
    std::vector<std::uint64_t> words_;
};
