// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/KnownHeaders.h"
#include "logbook/ParsedEntry.h"
#include "logbook/clsFile.h"

#include <string>
#include <string_view>

// The date of the last separator line.
struct SeparatorDate {
    std::string Text; // as the line has it: "Mon Jan 04 2010"
    std::string Day;  // in a stamp, with the blank before the clock: "04.01.2010 "
};

// In this generation a separator line, which begins with "___", carries the date; the events below it carry
// only the clock time.
//
// Fills `entry` as ParseClassicLine does. The caller keeps `date` between calls. After a separator line this
// reads the next line at once. Throws RunTimeError for a key line whose clock stands before its text.
void ParseSeparatedLine(std::string_view line, ParsedEntry& entry, clsFile& file, SeparatorDate& date,
                        KnownHeaders& headers);
