// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/KnownHeaders.h"
#include "logbook/ParsedEntry.h"
#include "logbook/ReadingProgress.h"
#include "logbook/clsFile.h"

#include <string_view>

// The classic generation writes its keywords in upper case, and every event carries its whole time stamp.
//
// Fills `entry`, which must have been reset, from one line and the further lines of its event, which are
// taken from `file`; `headers` is kept for the whole read. A line with no keyword leaves EventType at -1.
// Throws RunTimeError for a keyword line that is too short, and when `progress` wants to stop while a
// register block does not end.
void ParseClassicLine(std::string_view line, ParsedEntry& entry, clsFile& file, ReadingProgress& progress,
                      KnownHeaders& headers);
