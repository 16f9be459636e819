// SPDX-License-Identifier: MIT
#pragma once

#include "tools/MachineClock.h"
#include "tools/Plants.h"

#include <cstdint>
#include <iosfwd>
#include <string>

// The three text forms of a logbook.
enum class Generation { Classic, Separated, Operation };

// What is to be written. The logbook ends with the event that reaches the first of the limits, so it may be a
// few bytes longer than asked for but never holds more events; 0 is no limit. With no limit at all there are
// no events.
struct LogbookOrder {
    Generation generation = Generation::Classic;
    std::uint64_t entries = 0;
    std::uint64_t bytes = 0;
    std::uint64_t seed = 1;
    std::int64_t firstDay = MachineClock::UsualFirstDay; // days since 1 January 1970
    Plants plants = {};
};

struct LogbookSize {
    std::uint64_t entries = 0;
    std::uint64_t bytes = 0;
};

// Writes a logbook of believable machine events: Windows-1252, line ends CR LF. The same order gives the same
// bytes on every platform. Stops early when the stream fails. Returns what was written. `truth` gets what
// tools/README.md calls the truth.
LogbookSize WriteLogbook(const LogbookOrder& order, std::ostream& out, std::ostream* truth = nullptr);

// The same as one text.
std::string LogbookText(const LogbookOrder& order);
