// SPDX-License-Identifier: MIT
#include "rows/TagMarks.h"

#include <algorithm>
#include <cmath>

std::int64_t TagScale::MarkHeight() const {
    return std::max<std::int64_t>(
        1, std::lround(static_cast<double>(Height) / static_cast<double>(std::max<std::int64_t>(Rows, 1))));
}

std::int64_t TagScale::RowAt(double y) const {
    if (Rows == 0 || Height <= 0)
        return 0;
    const double rowsAbove = y / (static_cast<double>(Height) / static_cast<double>(Rows));
    return std::clamp<std::int64_t>(std::lround(rowsAbove + 1), 1, Rows);
}

bool TagMarks::NextSlice(const EntryTable& entries, const LogbookRows& rows, std::int64_t height,
                         std::vector<std::int64_t>& tops) {
    constexpr std::int32_t SliceLength = 10000;
    tops.clear();
    const TagScale scale{static_cast<std::int64_t>(rows.size()), height};
    const auto count = static_cast<std::int32_t>(rows.size());
    for (std::int32_t row = TagViewerNextRow; row <= count; ++row) {
        const LogbookRow& shown = rows[static_cast<std::size_t>(row - 1)];
        if (shown.Highlighted == 0)
            continue;
        // The tops never decrease, and a comparison is quicker than a division.
        const bool newTop = (row - std::int64_t{1}) * height >= (lastTop_ + 1) * scale.Rows;
        const bool sliceEnds = row - TagViewerNextRow == SliceLength;
        if ((!newTop && !sliceEnds) || RowImage(shown, entries) <= HighlightedImageOffset)
            continue;
        if (newTop) {
            lastTop_ = scale.TopOf(row);
            tops.push_back(lastTop_);
        }
        if (sliceEnds) {
            TagViewerNextRow = row + 1;
            return false;
        }
    }
    return true;
}
