// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "rows/SortProgress.h"

#include <cstdint>
#include <string_view>
#include <vector>

// The different data texts of a table, numbered from 0 on as they occur. Logbooks say the same again and
// again: what is done once a text instead of once an entry is done a fraction of the times.
struct DistinctData {
    std::vector<std::uint32_t> Numbers;  // by entry
    std::vector<std::string_view> Texts; // by number; they stay valid as long as the table is as it is
};

// Finds them in one pass over the entries in their order. False when the texts differ too often for this to
// pay (which is known soon when all of them do), or when the sort was stopped.
bool FindDistinctData(const EntryTable& entries, DistinctData& distinct, SortProgress& progress);
