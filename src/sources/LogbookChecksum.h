// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <string>

// What tells one logbook from another: 32 hexadecimal digits over the entries as they were read, in their
// order; comments do not count. Logbooks of the same entries have the same one, wherever their files lie.
// Costs one look at all text and all entries, about a tenth of a second for ten million.
std::string LogbookChecksum(const EntryTable& entries);
