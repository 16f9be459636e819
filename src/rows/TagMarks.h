// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"

#include <cstdint>
#include <vector>

// Maps the whole list to the height of the tag viewer, in pixel lines of the screen. Rows are counted from 1.
struct TagScale {
    std::int64_t Rows = 0;
    std::int64_t Height = 0;

    // The first pixel line of a row. There must be rows.
    std::int64_t TopOf(std::int64_t row) const { return (row - 1) * Height / Rows; }

    // The number of pixel lines of a row: rounded, at least one.
    std::int64_t MarkHeight() const;

    // The nearest row to jump to from a height; 0 when there are no rows or no pixel lines.
    std::int64_t RowAt(double y) const;
};

// Finds the marks of the highlighted rows in slices, so that a timer can draw a long list without blocking
// the window.
class TagMarks {
  public:
    // The first row that the next slice handles; 1 = a new drawing.
    std::int32_t TagViewerNextRow = 1;

    void Restart() { *this = {}; }

    // Gives the first pixel lines of the next slice's marks, from top to bottom, each once in a drawing: rows
    // on the same line share a mark. True when this was the last slice.
    //
    // A slice ends at the row exactly 10,000 rows behind its first one if that row is highlighted, otherwise
    // with the list. This is deliberate: most lists are drawn in one go.
    bool NextSlice(const EntryTable& entries, const LogbookRows& rows, std::int64_t height,
                   std::vector<std::int64_t>& tops);

  private:
    std::int64_t lastTop_ = -1;
};
