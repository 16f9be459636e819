// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "logbook/LogbookStart.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// What a logbook records from one start of the control up to the next. It does not record when the control
// was switched off, so a session says what was written, and bounds how long it may have lasted.
struct Session {
    using Duration = std::chrono::milliseconds;

    bool StartRecorded = false;      // false only for the entries before the first start
    std::optional<Stamp> Start = {}; // nothing when it is not recorded, or cannot be read

    // Its entries, from First to before End; none when the two are equal.
    EntryNumber First = 0;
    EntryNumber End = 0;

    std::optional<Stamp> LastEntry = {}; // the last entry's stamp that can be read
    std::optional<Duration> Recorded =
        {};                              // last readable stamp minus first, the start's included; at least 0
    std::optional<Duration> ToNext = {}; // to the next start; at least 0

    std::uint32_t Errors = 0; // event types Error and Fatal
    std::uint32_t Warnings = 0;
    // Stamps that are earlier than the readable one before them, which may be in the session before.
    std::uint32_t ClockSteps = 0;
    std::uint32_t SummerTimeSteps = 0; // of these, those that the end of summer time explains (SummerTime.h)

    std::optional<EntryNumber> LastError = {};
    std::optional<Duration> LastErrorBeforeEnd = {}; // from its stamp to LastEntry; at least 0

    std::size_t EntryCount() const { return End - First; }
};

// The sessions of a logbook in its order. Entries before the first start are a session of their own. An entry
// that stands for several starts belongs to the first of them. `starts` are those of the read that filled the
// table. A table with the one empty entry of an empty logbook has no sessions.
//
// One pass over the entries; memory for the sessions only.
std::vector<Session> SessionsOf(const EntryTable& entries, std::span<const LogbookStart> starts);

// The sum of what the sessions record.
Session::Duration RecordedTime(std::span<const Session> sessions);

// How long the sessions can have lasted together, as far as starts say: the sum of the times to the next
// start. A session that records more than that, because the clock was set back, counts with what it records;
// so does one without a readable start at both ends, such as the last one. Nothing when there is no time to a
// next start.
std::optional<Session::Duration> MostTime(std::span<const Session> sessions);
