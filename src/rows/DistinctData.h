// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "rows/SortProgress.h"

#include <cstdint>
#include <string_view>
#include <vector>

// The different data texts of a table, numbered from 0 on as they occur. Logbooks repeat the same texts, so
// work once a text costs a fraction of work once an entry.
struct DistinctData {
    std::vector<std::uint32_t> Numbers;  // by entry
    std::vector<std::string_view> Texts; // by number; valid until the table changes
};

// Finds them in one pass over the entries in their order. False when the sort was stopped, or when too many
// texts differ for this to pay; if all differ, that shows soon.
bool FindDistinctData(const EntryTable& entries, DistinctData& distinct, SortProgress& progress);
