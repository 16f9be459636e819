// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"

#include <vector>

// Whether "All entries" is the only active filter. A filter counts as active if it can match an entry, so
// that an empty list of numbers, as taking highlights back leaves it, makes no difference.
bool IsAllEntries(const std::vector<FilterDefinition>& filters);

// Whether these hold the same filters by number, active or not, in the same order.
bool HaveSameNumbers(const std::vector<FilterDefinition>& filters,
                     const std::vector<FilterDefinition>& others);

// Whether an active filter by number can hide entries: it adds entries to the list or removes them.
bool HideByNumber(const std::vector<FilterDefinition>& filters);

// The filters in force after the stored ones were changed here from `before` to `after`. Usually `before` is
// what is in force. Otherwise others have changed the stored ones meanwhile: their changes count only from
// the next filter run on, and only the change made here takes force. Filters that it brings then stand at the
// end.
std::vector<FilterDefinition> WithChange(const std::vector<FilterDefinition>& inForce,
                                         const std::vector<FilterDefinition>& before,
                                         const std::vector<FilterDefinition>& after);
