// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/LogbookColumns.h"
#include "rows/SortProgress.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// How the rows of the list are sorted.
struct ListOrder {
    std::int16_t LastSortColumn = 0; // from 0 on; of the last sort, also when there was none yet
    bool Descending = false;
    std::optional<LogbookColumn> TagColumn; // whose text is the tag of each row; none = the event type number

    // Newly made rows have their event types as tags. Direction and column of the last sort stay.
    void ResetTags() { TagColumn.reset(); }

    bool operator==(const ListOrder&) const = default;
};

// The tag of the row of an entry: its event type number from the filling of the list on, its time or index
// once the rows were sorted by that column, whatever they are sorted by after it.
std::string RowTag(const EntryTable& entries, EntryNumber number, const ListOrder& order);

// Sorts the rows as a click on the header of a column does: the column of the last sort (the first one when
// there was none) inverts the order, another column keeps it. Rows with the same key keep their order in
// either direction.
//
// The hook is called with the percentage of the work that is done, every SortProgress::StepsPerCall rows of
// each pass over them; it changes neither entries nor rows. False when it asked to stop or there is no
// memory; rows and order are then as before, as they are while the sort runs. The sort takes about 24 bytes a
// row while it runs, and nothing of it stays but the rows.
bool SortListByColumn(const EntryTable& entries, LogbookRows& rows, LogbookColumn column, ListOrder& order,
                      const SortHook& hook = {});

// The places of a short list's cells in the order of a rule; cells with the same key keep their order in
// either direction.
std::vector<std::uint32_t> SortedOrder(std::span<const std::string> cells, SortRule rule, bool descending);
