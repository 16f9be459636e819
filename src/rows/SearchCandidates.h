// SPDX-License-Identifier: MIT
#pragma once

#include "rows/RowMatches.h"

#include <vector>

// The entries that a search may find, a bit an entry: all that match, and few others. Searches the data of
// all entries as it lies in the table, which is many times quicker than a test of each row; RowMatches then
// decides.
std::vector<bool> SearchCandidates(const EntryTable& entries, const SearchState& search);
