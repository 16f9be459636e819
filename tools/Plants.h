// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// What is planted into a story: the chance of each is one in so many events, 0 is never.
struct Plants {
    std::uint64_t codedErrors = 0;
    std::uint64_t cleared = 0;    // not in the operation generation, which does not write the events' names
    std::uint64_t clockSteps = 0; // forth and back
    std::uint64_t bursts = 0;     // of starts
    std::uint64_t precursors = 0;
    std::uint64_t chatter = 0;
    // The clock follows summer time, whenever the story comes to the last Sunday of March or October.
    bool summerTime = false;

    bool Any() const {
        return codedErrors + cleared + clockSteps + bursts + precursors + chatter > 0 || summerTime;
    }
};
