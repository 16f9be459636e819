// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryStamps.h"
#include "logbook/EntryTable.h"
#include "logbook/LogbookStart.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
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

    bool operator==(const Session&) const = default;
};

// The sessions of a logbook in its order. Entries before the first start are a session of their own. An entry
// that stands for several starts belongs to the first of them. `starts` are those of the read that filled the
// table. A table with the one empty entry of an empty logbook has no sessions.
//
// One pass over the entries; memory for the sessions only.
std::vector<Session> SessionsOf(const EntryTable& entries, std::span<const LogbookStart> starts);

// The same in parts, for a window that stays alive meanwhile.
class SessionsRun {
  public:
    // The table must outlive this, and may not be filled again.
    SessionsRun(const EntryTable& entries, std::span<const LogbookStart> starts);

    // Takes at most so many further entries; a session without entries counts as one. False when none is
    // left.
    bool Go(std::size_t most);

    // The sessions, once none is left.
    std::vector<Session> Take() { return std::move(sessions_); }

  private:
    void Begin();
    void End();
    void TakeStamp(const std::optional<Stamp>& stamp, Session& session);
    void TakeEntries(Session& session, EntryNumber end);

    const EntryTable& entries_;
    EntryStamps stamps_;
    std::vector<std::int16_t> types_; // by number of kind
    std::vector<Session> sessions_;
    std::size_t place_ = 0;           // of the session that is being counted
    EntryNumber next_ = 0;            // its next entry
    std::optional<Stamp> first_;      // of that session
    std::optional<Stamp> before_;     // the last one, also of earlier sessions
    std::optional<Stamp> errorStamp_; // of its last error
};

// The sum of what the sessions record.
Session::Duration RecordedTime(std::span<const Session> sessions);

// How long the sessions can have lasted together, as far as starts say: the sum of the times to the next
// start. A session that records more than that, because the clock was set back, counts with what it records;
// so does one without a readable start at both ends, such as the last one. Nothing when there is no time to a
// next start.
std::optional<Session::Duration> MostTime(std::span<const Session> sessions);
