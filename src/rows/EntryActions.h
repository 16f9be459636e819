// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/RowRanges.h"

class Registry;

// The list menu's actions on the entries of the selected rows. Each keeps its result as filters in the
// settings, written once (see filter/FiltersFromEntries.h). The list on the screen is changed in place,
// without a filter run.
//
// Costs a logarithm a row. Each call also reads, parses and writes the whole settings, which hold the numbers
// of all earlier calls: some milliseconds at first, and more than a second with a million scattered numbers.

// Keeps the entries of the selected rows out of the list from now on. Returns the rows to remove from it.
RowRanges RemoveFromList(Registry& registry, const LogbookRows& rows, const RowRanges& selected);

// Highlights the entries of the plain selected rows, and makes those of the highlighted ones plain. Returns
// the rows that change. A row that another filter highlights turns plain only when there
// is a filter of highlighted numbers, and the next filter run highlights it again.
RowRanges ToggleHighlighting(Registry& registry, const LogbookRows& rows, const RowRanges& selected);

// Keeps all entries out of the list whose numbers lie before those of the selected rows, or behind them, also
// entries that the logbook gets later. Adds one filter at the end of the stored ones. The caller then runs
// the filters. False, and nothing changes, without a selected row.
bool KeepBetween(Registry& registry, const LogbookRows& rows, const RowRanges& selected);

// Toggles the highlighting of these rows on the screen.
void ToggleHighlighting(LogbookRows& rows, const RowRanges& ranges);
