// SPDX-License-Identifier: MIT
#include "rows/RowRanges.h"

#include <algorithm>

RowRanges Joined(RowRanges ranges) {
    std::sort(ranges.begin(), ranges.end(),
              [](const RowRange& a, const RowRange& b) { return a.First < b.First; });
    RowRanges joined;
    for (const RowRange& range : ranges) {
        if (!joined.empty() && range.First <= joined.back().Last + 1)
            joined.back().Last = std::max(joined.back().Last, range.Last);
        else
            joined.push_back(range);
    }
    return joined;
}

std::size_t RowCount(const RowRanges& ranges) {
    std::size_t count = 0;
    for (const RowRange& range : ranges)
        count += range.Last - range.First + 1;
    return count;
}

SelectedEntries::SelectedEntries(const LogbookRows& rows, const RowRanges& ranges)
    : all_(RowCount(ranges) == rows.size()) {
    if (all_)
        return;
    for (const RowRange& range : ranges) {
        for (std::size_t row = range.First; row <= range.Last; ++row) {
            const std::size_t entry = rows[row].Entry;
            if (entry >= selected_.size())
                selected_.resize(std::max(entry + 1, 2 * selected_.size()));
            selected_[entry] = true;
        }
    }
}

RowRanges SelectedEntries::RangesIn(const LogbookRows& rows, std::size_t mostRanges) const {
    if (rows.empty())
        return {};
    if (all_)
        return {{0, rows.size() - 1}};
    RowRanges ranges;
    if (selected_.empty())
        return ranges;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const std::size_t entry = rows[row].Entry;
        if (entry >= selected_.size() || !selected_[entry])
            continue;
        if (!ranges.empty() && ranges.back().Last + 1 == row)
            ranges.back().Last = row;
        else if (ranges.size() == mostRanges)
            return {};
        else
            ranges.push_back({row, row});
    }
    return ranges;
}

void RemoveFromList(LogbookRows& rows, const RowRanges& ranges) {
    if (ranges.empty())
        return;
    auto to = rows.begin() + static_cast<std::ptrdiff_t>(ranges.front().First);
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        const auto from = rows.begin() + static_cast<std::ptrdiff_t>(ranges[i].Last) + 1;
        const auto end = i + 1 < ranges.size()
                             ? rows.begin() + static_cast<std::ptrdiff_t>(ranges[i + 1].First)
                             : rows.end();
        to = std::move(from, end, to);
    }
    rows.erase(to, rows.end());
}
