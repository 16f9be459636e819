// SPDX-License-Identifier: MIT
#include "filter/Filter.h"

#include "filter/FilterRun.h"

#include <algorithm>

bool MatchText(std::string_view field, std::string_view filterText) {
    return field.find(filterText) != std::string_view::npos;
}

bool ApplyFilters(const EntryTable& entries, std::span<const FilterDefinition> filters, LogbookRows& rows,
                  const FilterProgress& progress) {
    constexpr EntryNumber ProgressStep = 100;
    rows.clear();
    rows.reserve(entries.Count());
    FilterRun run(entries, filters);
    const EntryNumber count = entries.Count();
    EntryNumber lastShown = 0;
    if (progress)
        progress(0);
    for (EntryNumber first = 0; first < count; first += FilterRun::BatchSize) {
        const EntryNumber end = first + std::min(count - first, FilterRun::BatchSize);
        run.BeginBatch(first, end);
        for (EntryNumber number = first; number < end; ++number) {
            const FilterRun::Decision decision = run.Decide(number);
            if (decision == FilterRun::Decision::Invalid)
                return false;
            if (decision != FilterRun::Decision::Hidden)
                rows.push_back({.Entry = number & MostEntries,
                                .Highlighted = decision == FilterRun::Decision::Highlighted});
            if (progress && number - lastShown > ProgressStep) {
                progress(static_cast<double>(number) / (count - 1) * 100.0);
                lastShown = number;
            }
        }
    }
    if (progress)
        progress(0);
    return true;
}

std::optional<std::size_t> RowForEntry(const LogbookRows& rows, EntryNumber number) {
    const auto row =
        std::find_if(rows.begin(), rows.end(), [&](const LogbookRow& r) { return r.Entry >= number; });
    if (row == rows.end())
        return std::nullopt;
    return static_cast<std::size_t>(row - rows.begin());
}
