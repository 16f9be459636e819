// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "logbook/Stamp.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// Reads the time that a person enters: a clock time ("14:12", "14:12:07", "14:12:07.120"), a day ("20.11.",
// "20.11.2010", "2010-11-20"), or both, in either order or as ISO 8601, also its forms without separators
// ("20101120T141207") and with a comma before fractions. What is left out comes from `day`: the whole day, or
// the year of "20.11.". A day alone means its beginning. Nothing for another text, or if a
// day is needed and there is none.
std::optional<Stamp> ReadWantedTime(std::string_view text, std::optional<std::chrono::sys_days> day);

// How the rows lie in time.
enum class RowsInTime : std::uint8_t { Onward, Anyhow };

struct TimeFound {
    std::optional<std::size_t> Row;         // from 0
    std::optional<EntryNumber> HiddenEntry; // one that no row shows, and that would be nearer
};

// Onward: the first row at or after a time, as the rows stand. Anyhow: the row nearest to it, the first one
// of several. Rows whose time cannot be read do not count. Costs a look at each row, and at each entry where
// there are fewer rows.
TimeFound FindTime(const EntryTable& entries, const LogbookRows& rows, const Stamp& wanted, RowsInTime order);

// A day on which a logbook has entries.
struct LogbookDay {
    std::chrono::sys_days Day;
    std::uint32_t Entries = 0;
    std::uint32_t Errors = 0; // event types Error and Fatal

    bool operator==(const LogbookDay&) const = default;
};

// The days of a logbook in the order of time. Entries whose time cannot be read do not count.
std::vector<LogbookDay> DaysOf(const EntryTable& entries);
