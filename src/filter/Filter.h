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

// True when the filter text is empty or a part of the field, exact characters: for one look at one entry. A
// run over the entries searches the data of many at once.
bool MatchText(std::string_view field, std::string_view filterText);

// What a run tells its surroundings: a percentage from 0 to 100, every hundred entries; 0 at its begin and
// end.
using FilterProgress = std::function<void(double percent)>;

// Makes the rows of the list from the entries, in entry order: those that an active include filter matches
// and no active exclude filter; highlighted when an active highlight filter matches. The order of the filters
// has no effect.
//
// False when an entry to be shown has an event type outside 0 to 9; the rows made before it stay.
//
// Costs one step an entry, and for each filter with a text one look at the data of all entries.
bool ApplyFilters(const EntryTable& entries, std::span<const FilterDefinition> filters, LogbookRows& rows,
                  const FilterProgress& progress = {});

// The row to select after a run for the entry that was selected before it: the first, in the order of the
// rows, whose entry has that number or a higher one.
std::optional<std::size_t> RowForEntry(const LogbookRows& rows, EntryNumber number);
