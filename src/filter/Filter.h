// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "logbook/EntryTable.h"

// Makes the rows of the list from the entries, in entry order. False when an entry has an event type outside
// 0 to 9; the rows made before it stay.
bool ApplyFilters(const EntryTable& entries, LogbookRows& rows);
