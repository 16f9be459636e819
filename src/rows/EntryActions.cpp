// SPDX-License-Identifier: MIT
#include "rows/EntryActions.h"

#include "filter/FilterStorage.h"
#include "filter/FiltersFromEntries.h"
#include "filter/NumberList.h"
#include "settings/Registry.h"

#include <algorithm>
#include <string>

namespace {

// Calls `change` with each selected row in list order; returns those for which it was true.
template <typename Change>
RowRanges ChangedRows(const LogbookRows& rows, const RowRanges& selected, Change change) {
    RowRanges changed;
    for (const RowRange& range : selected) {
        for (std::size_t row = range.First; row <= range.Last; ++row) {
            if (!change(rows[row]))
                continue;
            if (!changed.empty() && changed.back().Last + 1 == row)
                changed.back().Last = row;
            else
                changed.push_back({row, row});
        }
    }
    return changed;
}

} // namespace

RowRanges RemoveFromList(Registry& registry, const LogbookRows& rows, const RowRanges& selected) {
    NumberFilters filters(registry, FilterActions::Exclude);
    for (const RowRange& range : selected)
        for (std::size_t row = range.First; row <= range.Last; ++row)
            filters.Add(rows[row].Entry);
    filters.Write();
    return Joined(selected);
}

RowRanges ToggleHighlighting(Registry& registry, const LogbookRows& rows, const RowRanges& selected) {
    NumberFilters filters(registry, FilterActions::Highlight);
    RowRanges toggled = ChangedRows(rows, selected, [&](const LogbookRow& row) {
        if (row.Highlighted != 0)
            return filters.Remove(row.Entry);
        filters.Add(row.Entry);
        return true;
    });
    filters.Write();
    return toggled;
}

bool KeepBetween(Registry& registry, const LogbookRows& rows, const RowRanges& selected) {
    if (selected.empty())
        return false;
    EntryNumber first = MostEntries;
    EntryNumber last = 0;
    for (const RowRange& range : selected)
        for (std::size_t row = range.First; row <= range.Last; ++row) {
            first = std::min<EntryNumber>(first, rows[row].Entry);
            last = std::max<EntryNumber>(last, rows[row].Entry);
        }
    std::string outside = first == 0 ? "" : FormatNumberRange({0, first - 1}) + ',';
    outside += FormatNumberRange({last + 1, MostEntries});
    const StoredFilters stored = LoadFilterList(registry);
    const std::size_t place = stored.Filters.size();
    const Registry::Transaction transaction(registry);
    // Where the default list stands for a missing one, it stays.
    for (std::size_t i = stored.IsStored ? place : 0; i < place; ++i)
        WriteFilter(registry, i, stored.Filters[i]);
    WriteFilter(registry, place,
                {.Action = FilterActions::Exclude,
                 .FilterType = FilterTypes::Numbers,
                 .StringFilter = outside,
                 .Name = {},
                 .Emitter = {}});
    WriteFilterCount(registry, place + 1);
    return true;
}

void ToggleHighlighting(LogbookRows& rows, const RowRanges& ranges) {
    for (const RowRange& range : ranges)
        for (std::size_t row = range.First; row <= range.Last; ++row)
            rows[row].Highlighted = rows[row].Highlighted == 0 ? 1 : 0;
}
