// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <cstddef>
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

// True when a part of the list matches the entry. The cost grows with the whole list.
bool MatchNumberList(EntryNumber entry, std::string_view list);

// A range as a part of a list: a single number as that number, otherwise the bounds joined by "-".
std::string FormatNumberRange(NumberRange range);

// The list with the number added. A list that matches the number stays as it is. Otherwise every part that
// ends or begins next to the number is extended to it, and the parts are not merged (3,5 with 4 is 3-4,4-5).
// When there is no such part, the number is appended. When more than two parts end next to the number, or
// begin there, the widest replaces them all; it is extended and moved to the end. Other parts keep their
// text, whatever it is.
std::string AddToNumberList(std::string_view list, EntryNumber number);

// The list without the number. The rest of a part that holds it becomes one part or two (4-9 without 6 is
// 4-5,7-9), or none. The other parts keep their text.
std::string RemoveFromNumberList(std::string_view list, EntryNumber number);

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
