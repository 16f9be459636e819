// SPDX-License-Identifier: MIT
#pragma once

#include "cli/PrintedList.h"
#include "rows/RowMatches.h"

// Prints the rows of the list that a search finds, in list order and in the form of an export. When none
// matches it prints an empty list and returns ExitStatus::Failed.
int RunFind(const ListOptions& options, const SearchState& search);
