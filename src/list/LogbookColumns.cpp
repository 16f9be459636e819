// SPDX-License-Identifier: MIT
#include "list/LogbookColumns.h"

std::string CellText(const EntryTable& entries, EntryNumber number, LogbookColumn column) {
    switch (column) {
    case LogbookColumn::Event:
        return std::string(EventTypeName(entries.Kind(number).EventType));
    case LogbookColumn::Data:
        return std::string(entries.Data(number));
    case LogbookColumn::Sender:
        return entries.Kind(number).Sender;
    case LogbookColumn::Name:
        return entries.Kind(number).Name;
    case LogbookColumn::Time:
        return entries.Time(number);
    case LogbookColumn::Index:
        return std::to_string(number);
    case LogbookColumn::Comment:
        return std::string(entries.Comment(number));
    }
    return {};
}
