// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "support/EntriesFrom.h"

#include <string>
#include <utility>
#include <vector>

// What EnterComments.cpp enters, and into which logbook.
inline const std::vector<std::pair<EntryNumber, std::string>> EnteredComments{
    {1, "first"}, {3, "pump"}, {1, "second"}};

inline void FillCommentedLogbook(EntryTable& entries) {
    FillTable(entries, std::vector<TestEntry>(5, {EventTypes::Info, "data", "NC", "name"}));
}
