// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <span>
#include <string>
#include <vector>

// What tells the beginning of one logbook from that of another: 32 hexadecimal digits over its first entries
// as they were read, in their order; comments do not count. What stands behind them makes no difference, so
// that a logbook that has grown is known by the entries that it had. The same entries have the same one,
// wherever their files lie and whatever the code page that they were read with: of their texts the ASCII
// characters count.
//
// Gives one for each of the counts, which ascend and are at most that of the entries. Costs one look at the
// text and entries of the longest beginning, about half a second for ten million.
std::vector<std::string> ChecksumsOfBeginnings(const EntryTable& entries,
                                               std::span<const EntryNumber> counts);

// What tells one entry from another: 32 hexadecimal digits over its time stamp, sender and name. Its data
// does not count, which grows with the lines that a control adds to its last entry.
std::string ChecksumOfEntry(const EntryTable& entries, EntryNumber number);

// The checksum of a whole logbook that version 0.1 had: it tells kinds and dates by their places in the lists
// of the whole logbook.
std::string LogbookChecksum(const EntryTable& entries);
