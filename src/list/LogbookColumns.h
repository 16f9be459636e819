// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <array>
#include <string>
#include <string_view>

// The columns of the logbook list, in order.
enum class LogbookColumn { Event, Data, Sender, Name, Time, Index, Comment };

struct LogbookColumnInfo {
    std::string_view Header;
    int DefaultWidth; // twips
};

inline constexpr std::array<LogbookColumnInfo, 7> LogbookColumns{{
    {"Event type", 2000},
    {"Data", 5000},
    {"Sender", 1700},
    {"Name", 1700},
    {"Time", 2000},
    {"Index", 1000},
    {"Comment", 3000},
}};

inline constexpr int LogbookColumnCount = static_cast<int>(LogbookColumns.size());

// The text of a cell as a person sees it, in UTF-8. The event type of the entry must be one that has a name.
std::string CellText(const EntryTable& entries, EntryNumber number, LogbookColumn column);
