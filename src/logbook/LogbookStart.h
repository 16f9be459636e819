// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "logbook/Stamp.h"

#include <optional>

// A start of the control. The table has one entry for starts that directly follow each other; the starts of a
// logbook are all that it records.
struct LogbookStart {
    // The first entry that belongs to this start or comes after it: its own entry or, where an entry before
    // it stands for it, the next one. Table's Count when there is none.
    EntryNumber Entry = 0;
    std::optional<Stamp> Time; // nothing when it cannot be read

    bool operator==(const LogbookStart&) const = default;
};
