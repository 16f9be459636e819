// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/LogbookColumns.h"
#include "rows/SortDirection.h"
#include "rows/SortProgress.h"

// Stores the rows in the order of a column in `sorted`, which must be empty. Rows with the same key keep
// their order in either direction. False when the sort was stopped. Throws std::bad_alloc.
//
// Sorts integers: entry numbers, seconds, ranks of kinds. Sorts texts only when they belong to single
// entries.
bool SortRows(const EntryTable& entries, const LogbookRows& rows, LogbookColumn column,
              SortDirection direction, LogbookRows& sorted, SortProgress& progress);
