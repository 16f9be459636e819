// SPDX-License-Identifier: MIT
#include "rows/LogbookColumns.h"

std::string CellText(const EntryTable& entries, EntryNumber number, LogbookColumn column) {
    switch (column) {
    case LogbookColumn::Event:
    case LogbookColumn::Sender:
    case LogbookColumn::Name:
        return std::string(KindText(entries.Kind(number), column));
    case LogbookColumn::Data:
        return std::string(entries.Data(number));
    case LogbookColumn::Time:
        return entries.Time(number);
    case LogbookColumn::Index:
        return std::to_string(number);
    case LogbookColumn::Comment:
        return std::string(entries.Comment(number));
    }
    return {};
}

std::string_view KindText(const EntryKind& kind, LogbookColumn column) {
    if (column == LogbookColumn::Event)
        return IsEventType(kind.EventType) ? EventTypeName(kind.EventType) : std::string_view{};
    return column == LogbookColumn::Sender ? kind.Sender : kind.Name;
}
