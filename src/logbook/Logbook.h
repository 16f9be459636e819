// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <cstdint>

// Phases of showing a logbook. A phase that a run-time error left unfinished stays in LoadState and selects
// the message that the user gets.
namespace LoadStates {
inline constexpr std::int16_t Corrupt = -1;
inline constexpr std::int16_t Done = 0;
inline constexpr std::int16_t Opening = 1;
inline constexpr std::int16_t Reading = 2;
inline constexpr std::int16_t Filtering = 3;
} // namespace LoadStates

// The logbook that the program shows. Made once, where the program starts, and handed on from there.
struct Logbook {
    EntryTable Entries;
    std::int64_t EntryCount = 0; // as the last read that could open its file told it
    std::int16_t LoadState = LoadStates::Done;
    bool Busy = false; // a logbook is being read and shown
};
