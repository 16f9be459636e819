// SPDX-License-Identifier: MIT
#include "logbook/EntryCollector.h"

#include "base/RunTimeError.h"
#include "logbook/FoldIntoPrevious.h"

namespace {

std::int64_t DivideHalfToEven(std::int64_t value, std::int64_t divisor) {
    const std::int64_t quotient = value / divisor;
    const std::int64_t twiceRest = value % divisor * 2;
    const bool up = twiceRest > divisor || (twiceRest == divisor && quotient % 2 != 0);
    return quotient + (up ? 1 : 0);
}

} // namespace

void EntryCollector::Begin(std::int64_t fileSize) {
    constexpr std::int64_t BytesPerEntry = 100;
    UpperBound = DivideHalfToEven(fileSize, BytesPerEntry);
    Starts.clear();
    // Unused room costs nothing, but a table that must grow is moved.
    Entries.Clear(static_cast<std::size_t>(UpperBound) * 2 + 1, static_cast<std::size_t>(fileSize));
}

void EntryCollector::Store() {
    ParsedEntry& entry = Slots[WorkingSlot];
    if (StoredCount > 0 && FoldIntoPrevious(entry, Slots[1 - WorkingSlot])) {
        if (entry.EventType == EventTypes::Restart)
            NoteStart(entry);
        return;
    }
    if (StoredCount > UpperBound)
        UpperBound *= 2;
    if (StoredCount > UpperBound)
        throw RunTimeError("an entry lies beyond the table");
    AppendLast();
    ++StoredCount;
    // A key stroke may still change with the next one.
    LastMayChange = entry.EventType == EventTypes::Key;
    if (!LastMayChange)
        Entries.Append(entry, Code);
    if (entry.EventType == EventTypes::Restart)
        NoteStartAt(StoredCount - 1, entry);
    WorkingSlot = 1 - WorkingSlot;
}

void EntryCollector::NoteStartAt(std::int64_t number, const ParsedEntry& start) {
    Starts.push_back({static_cast<EntryNumber>(number), ReadStamp(start.Time)});
}

void EntryCollector::End() {
    AppendLast();
    Entries.Trim();
}

void EntryCollector::AppendLast() {
    if (LastMayChange)
        Entries.Append(Slots[1 - WorkingSlot], Code);
    LastMayChange = false;
}
