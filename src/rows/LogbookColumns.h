// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "rows/SortKeys.h"
#include "settings/Texts.h"

#include <array>
#include <string>
#include <string_view>

// The columns of the logbook list, in order.
enum class LogbookColumn { Event, Data, Sender, Name, Time, Index, Comment };

struct LogbookColumnInfo {
    std::string_view Key; // of the column in the list
    TextId Header;
    SortRule Rule;
    int DefaultWidth;              // twips
    std::string_view WidthSetting; // name of the stored width, in twips; empty = not stored
};

inline constexpr std::array<LogbookColumnInfo, 7> LogbookColumns{{
    {"event", TextId::ColumnEvent, SortRule::Text, 2000, "Column(1).Width"},
    {"ident", TextId::ColumnData, SortRule::Text, 5000, "Column(2).Width"},
    {"emitter", TextId::ColumnSender, SortRule::Text, 1700, "Column(3).Width"},
    {"name", TextId::ColumnName, SortRule::Text, 1700, "Column(4).Width"},
    {"time", TextId::ColumnTime, SortRule::Date, 2000, "Column(5).Width"},
    {"index", TextId::ColumnIndex, SortRule::Number, 1000, "Column(6).Width"},
    {"", TextId::ColumnComment, SortRule::Text, 3000, ""},
}};

inline constexpr int LogbookColumnCount = static_cast<int>(LogbookColumns.size());

// The text of a cell as a person sees it, in UTF-8. The entry's event type must have a name.
std::string CellText(const EntryTable& entries, EntryNumber number, LogbookColumn column);

// The text of a cell in the columns Event, Sender and Name, the same for all entries of a kind; empty for an
// event type without a name. It is valid as long as the kind.
std::string_view KindText(const EntryKind& kind, LogbookColumn column);
