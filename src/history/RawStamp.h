// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

// What a raw line of a logbook says about time, whatever its generation. A line may have its line end.

// The time stamp at the end of an event's first line.
struct RawStamp {
    std::string_view Clock; // "12:34:56"
    bool HasDate = false;   // the line brings its date, too

    bool operator==(const RawStamp&) const = default;
};

// Nothing for a line that does not end in a stamp, and for a message line, which begins with a blank: a clock
// in it is part of its text.
//
//     "Key:     F4 up code 0x0184 mode WHEEL     06:23:07"                  06:23:07
//     "Key:     0x0051 -> Q                      06:24:16 Mon Jan 04 2010"  06:24:16, has a date
//     "STIB:    On                               04.01.2010 06:12:04.250"   06:12:04, has a date
std::optional<RawStamp> StampOfRawLine(std::string_view line);

// True for a separator line that carries a whole date, as "_________Mon Jan 04 2010____________".
bool IsDatedSeparator(std::string_view line);
