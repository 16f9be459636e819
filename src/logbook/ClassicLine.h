// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/KnownHeaders.h"
#include "logbook/ParsedEntry.h"
#include "logbook/ReadingProgress.h"
#include "logbook/clsFile.h"

#include <string_view>

// The classic generation writes its keywords in upper case, and every event carries its whole time stamp.
//
// Fills `entry` from one line and reads the further lines of its event from `file`. `entry` must have been
// reset; `headers` lives for the whole read. A line without a keyword leaves EventType at -1. Throws
// RunTimeError for a keyword line that is too short, and when `progress` wants to stop in a register block
// that does not end.
void ParseClassicLine(std::string_view line, ParsedEntry& entry, clsFile& file, ReadingProgress& progress,
                      KnownHeaders& headers);
