// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <cstdint>
#include <vector>

// The time stamps of a table as numbers in the order of their date keys (DateKey). The text before the clock
// is read once a day, not once an entry.
class TimeKeys {
  public:
    static constexpr std::uint64_t None = 0; // the key of a text that cannot be read as a moment

    explicit TimeKeys(const EntryTable& entries);

    // The seconds of the entry's moment since a fixed day; None comes before all of them.
    std::uint64_t operator[](EntryNumber number) const;

    // The first second of the earliest readable day in the table, or of a fixed day when there is none.
    // Ignores stamps that do not end in a clock time; these may lie before it.
    std::uint64_t Earliest() const { return earliest_; }

  private:
    const EntryTable& entries_;
    std::vector<std::uint64_t> dates_; // by number of date: its first second, or None
    std::uint64_t earliest_;
};
