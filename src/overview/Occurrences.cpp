// SPDX-License-Identifier: MIT
#include "overview/Occurrences.h"

#include "rows/NextRow.h"

bool Occurrences::Is(EntryNumber entry) const {
    const EntryKind& kind = entries_.Kind(entry);
    if (!EventTypes::IsError(kind.EventType) && kind.EventType != EventTypes::Warning)
        return false;
    keys_.MakeKey(entries_.Data(entry), kind.Sender, kind.Name, made_);
    return made_ == key_;
}

std::optional<std::size_t> Occurrences::Next(const LogbookRows& rows, std::optional<std::size_t> start,
                                             SearchDirection direction) const {
    return NextRowThat(rows, start, direction, [this](const LogbookRow& row) { return Is(row.Entry); });
}

EntrySet Occurrences::All() const {
    EntrySet all(entries_.Count());
    for (EntryNumber entry = 0; entry < entries_.Count(); ++entry)
        if (Is(entry))
            all.Add(entry);
    return all;
}
