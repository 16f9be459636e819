// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "logbook/EntryTable.h"
#include "logbook/LogbookStart.h"
#include "logbook/ParsedEntry.h"

#include <array>
#include <cstdint>
#include <vector>

// Takes the entries of a read one by one, folds each into the one before it where the two belong together,
// and stores entries that can no longer change in the entry table.
class EntryCollector {
  public:
    // Notes every start in `starts`, also those that are folded into an entry before them.
    EntryCollector(EntryTable& entries, std::vector<LogbookStart>& starts, const CodePage& codePage)
        : Entries(entries), Starts(starts), Code(codePage) {}

    // Empties table and starts, and makes the table ready for a file of `fileSize` bytes: one entry is
    // expected for each 100 bytes.
    void Begin(std::int64_t fileSize);

    // The entry to fill next, reset.
    ParsedEntry& Working() {
        ParsedEntry& entry = Slots[WorkingSlot];
        entry.Reset();
        return entry;
    }

    // Stores the working entry. An entry beyond the upper bound doubles the bound. A bound of 0 therefore
    // never grows, and the second entry of a file of 50 bytes or fewer throws RunTimeError. This is
    // deliberate: so small a file is a fragment, and the read must fail rather than show it as a logbook.
    void Store();

    // Notes a start that is no entry of the table, at the next entry.
    void NoteStart(const ParsedEntry& start) { NoteStartAt(Count(), start); }

    // How many entries have been stored.
    std::int64_t Count() const { return StoredCount; }

    // Makes the texts of the last stored entry independent of the file's lines.
    void KeepLast() {
        if (LastMayChange)
            Slots[1 - WorkingSlot].Keep();
    }

    // Stores the last entry in the table, too.
    void End();

  private:
    void AppendLast();
    void NoteStartAt(std::int64_t number, const ParsedEntry& start);

    EntryTable& Entries;
    std::vector<LogbookStart>& Starts;
    const CodePage& Code;
    std::array<ParsedEntry, 2> Slots; // the working entry and the one stored last
    std::size_t WorkingSlot = 0;
    bool LastMayChange = false; // the entry stored last is a key stroke, and not yet in the table
    std::int64_t StoredCount = 0;
    std::int64_t UpperBound = 0;
};
