// SPDX-License-Identifier: MIT
#pragma once

#include "tools/LogbookWriter.h"
#include "tools/WrittenStamp.h"

#include <cstdint>
#include <iosfwd>
#include <set>
#include <string>
#include <string_view>

class MachineClock;
struct MachineEvent;
struct ShownEntry;

// Writes down what a logbook holds while it is written, one JSON object a line: starts, errors, and what was
// planted. tools/README.md lists the objects.
class Truth {
  public:
    Truth(Generation generation, std::ostream& sink) : told(generation), out(sink) {}

    // The lines before the first event.
    void TakeHeading(std::string_view text);
    // An event, the clock at its time, and its lines as they were written, with a separator line before them
    // where there is one.
    void Take(const MachineEvent& event, const MachineClock& clock, std::string_view text);
    // The logbook is written.
    void End();

  private:
    void TakeError(const ShownEntry& entry, const WrittenStamp& stamp, const std::string& key);
    void TakeCleared(const ShownEntry& entry);
    void TakePlanted(const MachineEvent& event, const WrittenStamp& stamp, const std::string& key);
    void EndChatter();

    Generation told;
    std::ostream& out;
    std::uint64_t line = 1; // of the event
    bool firstEvent = true;
    WrittenStamp last;            // of the event before
    std::set<std::string> raised; // keys of the errors so far

    std::uint64_t precursorLine = 0;
    std::string precursorKey;

    std::uint64_t chatterLine = 0;
    std::uint64_t chatterCount = 0;
    std::string chatterKey;
    WrittenStamp chatterBegin;
    WrittenStamp chatterEnd;
};
