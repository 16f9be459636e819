// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/LogbookColumns.h"
#include "rows/SortProgress.h"

// Puts the rows in the order of a column into `sorted`, which is empty before; rows with the same key keep
// their order in either direction. False when the sort was stopped. Throws std::bad_alloc.
//
// What is sorted are integers: entry numbers, seconds, ranks of kinds; texts only where they are an entry's
// own.
bool SortRows(const EntryTable& entries, const LogbookRows& rows, LogbookColumn column, bool descending,
              LogbookRows& sorted, SortProgress& progress);
