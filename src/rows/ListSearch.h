// SPDX-License-Identifier: MIT
#pragma once

#include "rows/RowMatches.h"

#include <cstdint>

// Rows are counted from 1 here: row n of the list is rows[n - 1].

// The first row behind `start` that matches, in the order of the list: downwards, or upwards when `up` is
// set, whatever the search's own direction; -1 when there is none. The search does not wrap around. A start
// of 0 means that no row is selected: the search then begins with the first row (up: the last row), that row
// included.
//
// Costs one look at the text of all entries and one step a row at most, and less where a match is near.
std::int32_t FindInList(const EntryTable& entries, const LogbookRows& rows, std::int32_t start,
                        const SearchState& search, bool up);

// All rows that match, in the order of the list.
LogbookRows MatchingRows(const EntryTable& entries, const LogbookRows& rows, const SearchState& search);
