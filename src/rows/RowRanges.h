// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"

#include <cstddef>
#include <vector>

// Rows of the list as ranges: both ends count, no two ranges touch, in list order. A selection is held so:
// everything selected is one range, whatever the number of rows.
struct RowRange {
    std::size_t First;
    std::size_t Last;

    bool operator==(const RowRange&) const = default;
};
using RowRanges = std::vector<RowRange>;

// Sorts the ranges and joins those that overlap or touch.
RowRanges Joined(RowRanges ranges);

std::size_t RowCount(const RowRanges& ranges);

// Which entries a selection holds, while their rows change places or go. One bit an entry.
class SelectedEntries {
  public:
    SelectedEntries(const LogbookRows& rows, const RowRanges& ranges);

    // The rows that show these entries. Scans the rows once, unless none or all of them are selected. Nothing
    // when they are scattered over more than `mostRanges` ranges.
    RowRanges RangesIn(const LogbookRows& rows, std::size_t mostRanges) const;

  private:
    std::vector<bool> selected_;
    bool all_;
};

// Takes the rows of the ranges out of the list; the others keep their order.
void RemoveRows(LogbookRows& rows, const RowRanges& ranges);
