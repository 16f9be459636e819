// SPDX-License-Identifier: MIT
#pragma once

#include "rows/RowMatches.h"

#include <vector>

// Which entries a search may find, a bit an entry: all that match, and few others. The data of all entries is
// looked through as it lies in the table, which is many times quicker than a test of each row; what matches
// for certain is then tested by RowMatches.
std::vector<bool> SearchCandidates(const EntryTable& entries, const SearchState& search);
