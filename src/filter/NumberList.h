// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <optional>
#include <string_view>
#include <vector>

// A number list names entries: numbers and ranges "lower-upper" with both ends included, separated by ",".
// Numbers are decimal digits with blanks around them; a part that is anything else matches nothing, and so
// does a range whose lower bound is above its upper.
struct NumberRange {
    EntryNumber First = 0;
    EntryNumber Last = 0;

    bool operator==(const NumberRange&) const = default;
};

// What one part of a list matches. A bound beyond the largest entry number counts as that.
std::optional<NumberRange> ParseNumberPart(std::string_view part);

// The ranges of a list in ascending order, with gaps between them.
std::vector<NumberRange> ParseNumberList(std::string_view list);

// True when a part of the list matches the entry. Looks at the whole list.
bool MatchNumberList(EntryNumber entry, std::string_view list);
