// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "logbook/EntryTable.h"

// A row for each entry, in entry order, none highlighted.
inline LogbookRows AllRows(const EntryTable& entries) {
    LogbookRows rows;
    for (EntryNumber number = 0; number < entries.Count(); ++number)
        rows.push_back({number & MostEntries, 0});
    return rows;
}
