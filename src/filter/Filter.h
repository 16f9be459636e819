// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"
#include "filter/LogbookRow.h"
#include "logbook/EntryTable.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

// True when the filter text is empty or a part of the field; characters compare exactly. This is for one
// entry; a filter run searches the data of many entries at once.
bool MatchText(std::string_view field, std::string_view filterText);

// Receives the progress of a run: 0 to 100 percent, every hundred entries; 0 at the run's start and end.
using FilterProgress = std::function<void(double percent)>;

// Makes the rows of the list from the entries, in entry order. A row shows an entry that an active include
// filter matches and no active exclude filter; it is highlighted when an active highlight filter matches. The
// order of the filters has no effect.
//
// False when an entry to show has an event type outside 0 to 9; the rows made before it stay.
//
// Costs one step an entry, and for each filter with a text one search of the data of all entries.
bool ApplyFilters(const EntryTable& entries, std::span<const FilterDefinition> filters, LogbookRows& rows,
                  const FilterProgress& progress = {});

// The row to select after a run, in whose order the rows still are, when entry `number` was selected before
// it: the first row whose entry has that number or a higher one.
std::optional<std::size_t> RowForEntry(const LogbookRows& rows, EntryNumber number);
