// SPDX-License-Identifier: MIT
#include "filter/Filter.h"

bool ApplyFilters(const EntryTable& entries, LogbookRows& rows) {
    rows.clear();
    rows.reserve(entries.Count());
    for (EntryNumber number = 0; number < entries.Count(); ++number) {
        if (!IsEventType(entries.Kind(number).EventType))
            return false;
        rows.push_back({.Entry = number & 0x7FFFFFFFU, .Highlighted = 0});
    }
    return true;
}
