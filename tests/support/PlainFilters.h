// SPDX-License-Identifier: MIT
#pragma once

#include "filter/Filter.h"
#include "filter/FilterRun.h"

#include <algorithm>
#include <cstdint>
#include <vector>

// True when the filter, active or not, matches the entry.
inline bool MatchFilter(const FilterDefinition& filter, const EntryTable& entries, EntryNumber number) {
    if (!MatchKind(filter, entries.Kind(number)))
        return false;
    if (filter.FilterType == FilterTypes::Numbers)
        return MatchNumberList(number, filter.StringFilter);
    return MatchText(entries.Data(number), filter.StringFilter);
}

// The rows that the filters let through, by the rules for one entry and one filter at a time: what a run,
// which looks at many at once, is held against.
inline LogbookRows PlainRows(const EntryTable& entries, const std::vector<FilterDefinition>& filters) {
    LogbookRows rows;
    const auto anyMatches = [&](std::int16_t action, EntryNumber number) {
        return std::any_of(filters.begin(), filters.end(), [&](const FilterDefinition& filter) {
            return filter.Active && filter.Action == action && MatchFilter(filter, entries, number);
        });
    };
    for (EntryNumber number = 0; number < entries.Count(); ++number)
        if (anyMatches(FilterActions::Include, number) && !anyMatches(FilterActions::Exclude, number))
            rows.push_back(
                {.Entry = number & MostEntries, .Highlighted = anyMatches(FilterActions::Highlight, number)});
    return rows;
}
