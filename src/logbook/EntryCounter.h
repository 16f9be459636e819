// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/FoldIntoPrevious.h"
#include "logbook/ParsedEntry.h"

#include <array>
#include <cstddef>
#include <cstdint>

// Takes the entries of a read and folds them as EntryCollector does, but only counts them.
class EntryCounter {
  public:
    void NoteStart(const ParsedEntry&) {}

    // The entry to fill next, reset.
    ParsedEntry& Working() {
        ParsedEntry& entry = Slots[WorkingSlot];
        entry.Reset();
        return entry;
    }

    void Store() {
        if (StoredCount > 0 && FoldIntoPrevious(Slots[WorkingSlot], Slots[1 - WorkingSlot]))
            return;
        ++StoredCount;
        WorkingSlot = 1 - WorkingSlot;
    }

    // How many entries have been stored.
    std::int64_t Count() const { return StoredCount; }

    // Makes the texts of the last stored entry independent of the file's lines.
    void KeepLast() {
        if (StoredCount > 0)
            Slots[1 - WorkingSlot].Keep();
    }

  private:
    std::array<ParsedEntry, 2> Slots; // the working entry and the one stored last
    std::size_t WorkingSlot = 0;
    std::int64_t StoredCount = 0;
};
