// SPDX-License-Identifier: MIT
#pragma once

#include "cli/PrintedList.h"
#include "rows/RowMatches.h"

// Prints the rows of the list that a search finds, in list order and in the form of an export. ExitStatus
// Failed, too, when none matches; the list printed is then an empty one.
int RunFind(const ListOptions& options, const SearchState& search);
