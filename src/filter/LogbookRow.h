// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <vector>

// A row of the list: the number of the entry that it shows, without the entry's fields. 4 bytes a row.
struct LogbookRow {
    EntryNumber Entry : 31;
    EntryNumber Highlighted : 1;

    bool operator==(const LogbookRow&) const = default;
};
static_assert(sizeof(LogbookRow) == 4);

using LogbookRows = std::vector<LogbookRow>;

// Which entries have a row, by their numbers; `count` is that of all entries.
inline std::vector<bool> ShownEntries(const LogbookRows& rows, EntryNumber count) {
    std::vector<bool> shown(count);
    for (const LogbookRow& row : rows)
        shown[row.Entry] = true;
    return shown;
}

// The highlighted form of each icon stands this many places after the plain one.
inline constexpr int HighlightedImageOffset = 14;

inline int RowImage(const LogbookRow& row, const EntryTable& entries) {
    return entries.Kind(row.Entry).Image + (row.Highlighted != 0 ? HighlightedImageOffset : 0);
}
