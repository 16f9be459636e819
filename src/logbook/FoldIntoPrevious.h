// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/ParsedEntry.h"

// Merges an entry into the one before it where the two are one event to the reader: a key pressed and
// released, a run of key strokes, repeated restarts. True when `next` was merged; `previous` is then changed
// in place.
bool FoldIntoPrevious(const ParsedEntry& next, ParsedEntry& previous);
