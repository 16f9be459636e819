// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A number list names entries: numbers and ranges "lower-upper" with both ends included, separated by ",".
// Numbers are decimal digits, perhaps with blanks around them. Any other part matches nothing, and so does a
// range whose lower bound is above its upper.
struct NumberRange {
    EntryNumber First = 0;
    EntryNumber Last = 0;

    bool operator==(const NumberRange&) const = default;
};

// What one part of a list matches. A bound above the largest entry number counts as the largest.
std::optional<NumberRange> ParseNumberPart(std::string_view part);

// The ranges of a list in ascending order, with gaps between them.
std::vector<NumberRange> ParseNumberList(std::string_view list);

// True when a part of the list matches the entry. This is for one entry, as it reads the whole list. A filter
// run reads each list once, with ParseNumberList.
bool MatchNumberList(EntryNumber entry, std::string_view list);

// A range as a part of a list: a single number as that number, otherwise the bounds joined by "-".
std::string FormatNumberRange(NumberRange range);

// The list for entries whose numbers have grown by `shift`, which may be negative. Numbers below 0 are left
// out, and so are parts that match nothing.
std::string ShiftNumberList(std::string_view list, std::int64_t shift);

// Calls `visit` with the text of each part, in order, until it returns true; returns whether it did. An empty
// list has one part, which is empty.
template <typename Visit>
bool AnyNumberPart(std::string_view list, Visit visit) {
    for (;;) {
        const std::size_t comma = list.find(',');
        if (visit(list.substr(0, comma)))
            return true;
        if (comma == std::string_view::npos)
            return false;
        list.remove_prefix(comma + 1);
    }
}
