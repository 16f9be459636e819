// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/LogbookColumns.h"
#include "rows/SortDirection.h"
#include "rows/SortProgress.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// How the rows of the list are sorted.
struct ListOrder {
    std::int16_t LastSortColumn = 0; // from 0 on; 0 when there was no sort yet
    SortDirection Direction = SortDirection::Ascending;
    std::optional<LogbookColumn> TagColumn; // its text is the tag of each row; none = the event type number

    // Makes the event types the tags, as for new rows. Direction and column of the last sort stay.
    void ResetTags() { TagColumn.reset(); }

    bool operator==(const ListOrder&) const = default;
};

// The tag of an entry's row: its event type number from the filling of the list on; after a sort by time or
// index, the text of that column, whatever other columns are sorted by later.
std::string RowTag(const EntryTable& entries, EntryNumber number, const ListOrder& order);

// Sorts the rows as a click on a column's header does: the column of the last sort (the first column when
// there was none) inverts the direction, another column keeps it. Rows with the same key keep their order in
// either direction.
//
// Calls the hook with the percentage done, every SortProgress::StepsPerCall rows of each pass; the hook must
// change neither entries nor rows. False when the hook asked to stop or there is no memory; rows and order
// have then not changed. They do not change while the sort runs, either. The sort takes about 24 bytes a row
// while it runs.
bool SortListByColumn(const EntryTable& entries, LogbookRows& rows, LogbookColumn column, ListOrder& order,
                      const SortHook& hook = {});

// The places of a short list's cells, in the order of a rule; cells with the same key keep their order in
// either direction.
std::vector<std::uint32_t> SortedOrder(std::span<const std::string> cells, SortRule rule,
                                       SortDirection direction);
