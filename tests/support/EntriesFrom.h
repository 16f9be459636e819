// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <cstdint>
#include <string>
#include <vector>

// An entry in a test's own form.
struct TestEntry {
    std::int16_t EventType;
    std::string Data;
    std::string Sender;
    std::string Name;
    std::string Time = "04.01.2010 12:34:56";
};

// Fills a table with these entries. The texts are ASCII.
inline void FillTable(EntryTable& table, const std::vector<TestEntry>& entries) {
    const CodePage codePage; // costs far more than an entry does
    table.Clear();
    for (const TestEntry& entry : entries) {
        ParsedEntry parsed;
        parsed.EventType = entry.EventType;
        parsed.Data = entry.Data;
        parsed.Sender = entry.Sender;
        parsed.Name = entry.Name;
        parsed.Time = entry.Time;
        table.Append(parsed, codePage);
    }
}
