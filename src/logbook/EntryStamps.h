// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "logbook/Stamp.h"

#include <optional>
#include <vector>

// The stamps of a table's entries. Reads the text before the clock once a day, not once an entry.
class EntryStamps {
  public:
    // The table must outlive this, and may not be filled again.
    explicit EntryStamps(const EntryTable& entries);

    // Nothing for an entry whose time cannot be read (see ReadStamp).
    std::optional<Stamp> operator[](EntryNumber number) const {
        PackedStamp packed;
        if (!entries_.PackedTime(number, packed))
            return ReadStamp(entries_.Time(number));
        const std::optional<std::chrono::sys_days>& date = dates_[packed.Date];
        const std::uint32_t digits = packed.Clock & ~PackedStamp::HasMilliseconds; // HHMMSSmmm
        const std::uint32_t hour = digits / 10'000'000;
        const std::uint32_t minute = digits / 100'000 % 100;
        const std::uint32_t second = digits / 1000 % 100;
        if (!date || hour > 23 || minute > 59 || second > 59)
            return {};
        const std::int64_t clock = std::int64_t{(hour * 60 + minute) * 60 + second} * 1000 + digits % 1000;
        return Stamp{*date + std::chrono::milliseconds(clock),
                     (packed.Clock & PackedStamp::HasMilliseconds) != 0};
    }

  private:
    const EntryTable& entries_;
    std::vector<std::optional<std::chrono::sys_days>> dates_; // by number of date
};
