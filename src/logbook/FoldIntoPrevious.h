// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/ParsedEntry.h"

// The same for the two event types that `next` may have to be merged at all.
bool FoldKeyOrRestart(const ParsedEntry& next, ParsedEntry& previous);

// Merges an entry into the one before it where the two are one event to the reader: a key pressed and
// released, a run of key strokes, repeated restarts. True when `next` was merged; `previous` is then changed
// in place.
inline bool FoldIntoPrevious(const ParsedEntry& next, ParsedEntry& previous) {
    return (next.EventType == EventTypes::Key || next.EventType == EventTypes::Restart) &&
           FoldKeyOrRestart(next, previous);
}
