// SPDX-License-Identifier: MIT
#pragma once

#include "rows/RowMatches.h"

#include <cstdint>

// Rows are counted from 1 here: row n of the list is rows[n - 1].

// The first matching row behind `start` in this direction; -1 when there is none. Ignores the search's own
// one. The search does not wrap around. A start of 0 means that no row is selected: the search then includes
// all rows, from the first down or from the last up.
//
// Costs at most one search of all entries' text and one step a row, and less when a match is near.
std::int32_t FindInList(const EntryTable& entries, const LogbookRows& rows, std::int32_t start,
                        const SearchState& search, SearchDirection direction);

// All rows that match, in the order of the list.
LogbookRows MatchingRows(const EntryTable& entries, const LogbookRows& rows, const SearchState& search);
