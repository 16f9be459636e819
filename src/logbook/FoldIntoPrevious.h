// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/ParsedEntry.h"

// The same as FoldIntoPrevious; `next` must have one of the two event types that can be merged.
bool FoldKeyOrRestart(const ParsedEntry& next, ParsedEntry& previous);

// Merges `next` into `previous` where the two are one event to the reader: a key pressed and released, a run
// of key strokes, repeated restarts. True when it merged them; `previous` has then changed.
inline bool FoldIntoPrevious(const ParsedEntry& next, ParsedEntry& previous) {
    return (next.EventType == EventTypes::Key || next.EventType == EventTypes::Restart) &&
           FoldKeyOrRestart(next, previous);
}
