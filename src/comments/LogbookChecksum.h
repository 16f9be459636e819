// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <span>
#include <string>
#include <vector>

// A checksum identifies the beginning of a logbook: 32 hexadecimal digits over its first entries as they were
// read, in their order, without comments. Later entries make no difference, so that a logbook that has grown
// is recognised by the entries that it had. The same entries have the same checksum, wherever their file lies
// and whatever the code page that they were read with: only the ASCII characters of their texts count.
//
// Gives a checksum for each of the counts, which must ascend and be at most the number of entries. Costs one
// pass over the text and entries of the longest beginning, about half a second for ten million.
std::vector<std::string> ChecksumsOfBeginnings(const EntryTable& entries,
                                               std::span<const EntryNumber> counts);

// Identifies an entry: 32 hexadecimal digits over its time stamp, sender and name. Its data does not count,
// because a control may add lines to its last entry.
std::string ChecksumOfEntry(const EntryTable& entries, EntryNumber number);

// Version 0.1's checksum of a whole logbook: it identifies kinds and dates by their places in the lists of
// the whole logbook.
std::string LogbookChecksum(const EntryTable& entries);
