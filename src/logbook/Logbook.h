// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "logbook/LogbookStart.h"

#include <cstdint>
#include <vector>

// Phases of showing a logbook. When a run-time error ends a phase, the phase stays in LoadState and selects
// the message to the user.
namespace LoadStates {
inline constexpr std::int16_t Corrupt = -1;
inline constexpr std::int16_t Done = 0;
inline constexpr std::int16_t Opening = 1;
inline constexpr std::int16_t Reading = 2;
inline constexpr std::int16_t Filtering = 3;
} // namespace LoadStates

// The logbook that the program shows. The program makes one at its start and passes it on.
struct Logbook {
    EntryTable Entries;
    std::vector<LogbookStart> Starts; // all that were read, in the order of the file
    std::int64_t EntryCount = 0;      // from the last read that could open its file
    std::int16_t LoadState = LoadStates::Done;
    bool Busy = false; // a logbook is being read and shown, or an order runs that needs its rows as they are
};

// Sets Busy for as long as this lives.
class BusyLogbook {
  public:
    explicit BusyLogbook(Logbook& logbook) : logbook_(logbook) { logbook_.Busy = true; }
    ~BusyLogbook() { logbook_.Busy = false; }
    BusyLogbook(const BusyLogbook&) = delete;
    BusyLogbook& operator=(const BusyLogbook&) = delete;

  private:
    Logbook& logbook_;
};
