// SPDX-License-Identifier: MIT
#pragma once

#include "tools/LogbookWriter.h"

#include <cstdint>
#include <string>
#include <string_view>

class MachineClock;

// The time of an event as its first line has it.
struct WrittenStamp {
    std::string iso;               // 2010-01-04T12:45:02, or with .123
    std::int64_t milliseconds = 0; // since 1 January 1970
    bool exact = false;            // the line has milliseconds
};

// `clock` stands at the time of the event: lines of the separated generation have no date.
WrittenStamp ReadStamp(Generation generation, std::string_view firstLine, const MachineClock& clock);
