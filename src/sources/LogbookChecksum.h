// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <string>

// What tells one logbook from another: 32 hexadecimal digits over the entries as they were read, in their
// order; comments do not count. Logbooks of the same entries have the same one, wherever their files lie and
// whatever the code page that they were read with: of their texts the ASCII characters count. Costs one look
// at all text and all entries, about half a second for ten million.
std::string LogbookChecksum(const EntryTable& entries);
