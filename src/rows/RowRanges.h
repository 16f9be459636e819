// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"

#include <cstddef>
#include <vector>

// Rows of the list as ranges in list order: both ends are included, and no two ranges touch. A selection has
// this form: when everything is selected it is one range, whatever the number of rows.
struct RowRange {
    std::size_t First;
    std::size_t Last;

    bool operator==(const RowRange&) const = default;
};
using RowRanges = std::vector<RowRange>;

// Sorts the ranges and joins those that overlap or touch.
RowRanges Joined(RowRanges ranges);

std::size_t RowCount(const RowRanges& ranges);

// The rows for which `is` is true. Looks at each row once.
template <typename Is>
RowRanges RangesThat(const LogbookRows& rows, Is is) {
    RowRanges ranges;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (!is(rows[row]))
            continue;
        if (!ranges.empty() && ranges.back().Last + 1 == row)
            ranges.back().Last = row;
        else
            ranges.push_back({row, row});
    }
    return ranges;
}

// Remembers the entries of a selection while their rows move or are removed. One bit an entry.
class SelectedEntries {
  public:
    SelectedEntries(const LogbookRows& rows, const RowRanges& ranges);

    // The rows of these entries. Scans the rows once, unless none or all are selected. Empty when they are
    // scattered over more than `mostRanges` ranges.
    RowRanges RangesIn(const LogbookRows& rows, std::size_t mostRanges) const;

  private:
    std::vector<bool> selected_;
    bool all_;
};

// Removes the rows of the ranges from the list; the others keep their order.
void RemoveFromList(LogbookRows& rows, const RowRanges& ranges);
