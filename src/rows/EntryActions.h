// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/RowRanges.h"

class Registry;

// What the list's menu does with the selected rows' entries. Each is kept as filters in the settings, which
// are written once (see filter/FiltersFromEntries.h); the list on the screen is changed in place, without a
// filter run.
//
// Costs a logarithm a row. Each call also reads, parses and writes the settings as a whole, in which the
// numbers of all earlier calls stand: that takes some milliseconds at first, and more than a second with a
// million scattered numbers.

// Keeps the entries of the selected rows out of the list from now on. Returns the rows to take out of it, see
// RemoveRows.
RowRanges RemoveFromList(Registry& registry, const LogbookRows& rows, const RowRanges& selected);

// Highlights the entries of the selected rows that are plain, and the other way round. Returns the rows that
// change, see SwitchHighlighting. A row that another filter highlights turns plain when there is a filter of
// highlighted numbers, and the next filter run highlights it again; without one it does not change.
RowRanges ToggleHighlighting(Registry& registry, const LogbookRows& rows, const RowRanges& selected);

void SwitchHighlighting(LogbookRows& rows, const RowRanges& ranges);
