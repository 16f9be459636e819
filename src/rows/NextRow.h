// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/RowMatches.h"

#include <cstddef>
#include <cstdint>
#include <optional>

// What a person steps from row to row for.
enum class RowMark : std::uint8_t {
    Error, // event types 3 and 4
    Highlighted,
    Commented, // with a comment that is not empty
};

// The nearest row with this mark behind row `start` in this direction, without row `start` itself; nothing
// when there is none. Rows are counted from 0. Without a start, all rows are looked at, from the first down
// or from the last up. Costs at most one step a row.
std::optional<std::size_t> NextRow(const EntryTable& entries, const LogbookRows& rows,
                                   std::optional<std::size_t> start, RowMark mark, SearchDirection direction);

// As NextRow, for the rows that `has` accepts.
template <typename Has>
std::optional<std::size_t> NextRowThat(const LogbookRows& rows, std::optional<std::size_t> start,
                                       SearchDirection direction, Has has) {
    if (direction == SearchDirection::Down) {
        for (std::size_t row = start ? *start + 1 : 0; row < rows.size(); ++row)
            if (has(rows[row]))
                return row;
        return std::nullopt;
    }
    for (std::size_t row = start ? *start : rows.size(); row-- > 0;)
        if (has(rows[row]))
            return row;
    return std::nullopt;
}
