// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "settings/Texts.h"

#include <array>
#include <string>

// The columns of the logbook list, in order.
enum class LogbookColumn { Event, Data, Sender, Name, Time, Index, Comment };

struct LogbookColumnInfo {
    TextId Header;
    int DefaultWidth; // twips
};

inline constexpr std::array<LogbookColumnInfo, 7> LogbookColumns{{
    {TextId::ColumnEvent, 2000},
    {TextId::ColumnData, 5000},
    {TextId::ColumnSender, 1700},
    {TextId::ColumnName, 1700},
    {TextId::ColumnTime, 2000},
    {TextId::ColumnIndex, 1000},
    {TextId::ColumnComment, 3000},
}};

inline constexpr int LogbookColumnCount = static_cast<int>(LogbookColumns.size());

// The text of a cell as a person sees it, in UTF-8. The event type of the entry must be one that has a name.
std::string CellText(const EntryTable& entries, EntryNumber number, LogbookColumn column);
