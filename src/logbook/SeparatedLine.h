// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/ParsedEntry.h"
#include "logbook/clsFile.h"

#include <string>
#include <string_view>

// In this generation a separator line, which begins with "___", carries the date, and the events below it
// only the clock time.
//
// Fills `entry` as ParseClassicLine does. `separatorDate` keeps the date of the last separator line between
// calls; a separator line is followed at once by the line after it. Throws RunTimeError for a key line whose
// clock stands before its text.
void ParseSeparatedLine(std::string_view line, ParsedEntry& entry, clsFile& file, std::string& separatorDate);
