// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"

#include <cstdint>
#include <vector>

// The whole list on the height of the tag viewer, in pixel lines of the screen. Rows are counted from 1.
struct TagScale {
    std::int64_t Rows = 0;
    std::int64_t Height = 0;

    // The first pixel line of a row. There must be rows.
    std::int64_t TopOf(std::int64_t row) const { return (row - 1) * Height / Rows; }

    // How many pixel lines a row has: rounded, at least one.
    std::int64_t MarkHeight() const;

    // The row to jump to from a height, the nearest one; 0 when there are no rows or no pixel lines.
    std::int64_t RowAt(double y) const;
};

// Finds the marks of the highlighted rows, in slices, so that a timer can draw a long list without stopping
// the window.
class TagMarks {
  public:
    // The first row that the next slice handles; 1 = a new drawing.
    std::int32_t TagViewerNextRow = 1;

    void Restart() { *this = {}; }

    // The first pixel lines of the next slice's marks, from top to bottom, none of which was given before in
    // this drawing: rows that fall on one line have one mark. True when that was the last slice.
    //
    // A slice ends where the row exactly 10,000 rows behind its first one is highlighted, and otherwise with
    // the list. This is deliberate: most lists are drawn in one go.
    bool NextSlice(const EntryTable& entries, const LogbookRows& rows, std::int64_t height,
                   std::vector<std::int64_t>& tops);

  private:
    std::int64_t lastTop_ = -1;
};
