// SPDX-License-Identifier: MIT
#pragma once

#include "history/Sessions.h"
#include "logbook/EntrySet.h"
#include "logbook/EntryStamps.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// The strip of time on which the entries of a logbook lie in their order.
//
// Time runs by their stamps. Where a stamp is earlier than the readable one before it, the clock was set
// back: the strip breaks there, and a new part of it begins with the earlier time. An entry without a
// readable stamp lies where the readable one before it does.
//
//     08:00 08:10 08:30 07:50 08:05     two parts: 0 to 30 minutes (08:00 to 08:30),
//                                       30 to 45 minutes (07:50 to 08:05)
class Timeline {
  public:
    using Place = std::chrono::milliseconds; // on the strip, from 0 to Length
    using Time = std::chrono::sys_time<std::chrono::milliseconds>;

    // A part without a break in it.
    struct Part {
        EntryNumber First; // its first entry
        Time Begin;        // the stamp of its first readable entry
        Place Offset;      // where it begins

        bool operator==(const Part&) const = default;
    };

    // Behind so many parts there are no more breaks: the strip stands still until time has gone on.
    static constexpr std::size_t MostParts = 65536;

    // The table must outlive this, and may not be filled again. The strip is empty until it is made.
    explicit Timeline(const EntryTable& entries);

    // Takes at most so many further entries. False when none is left.
    bool Go(std::size_t most);

    Place Length() const { return length_; }
    std::span<const Part> Parts() const { return parts_; }

    // Where an entry with a number below the table's Count lies. Looks at no more than 256 entries.
    Place PlaceOf(EntryNumber entry) const;

    // The first entry that lies at or behind a place; Count when there is none. Costs a logarithm of the
    // entries and a look at 256 of them.
    EntryNumber FirstAt(Place place) const;

    // The local time at a place; nothing on an empty strip. At a break that of the part that ends there.
    std::optional<Time> TimeAt(Place place) const;

    // Which entries are errors (event types Error and Fatal) and warnings.
    const EntrySet& Errors() const { return errors_; }
    const EntrySet& Warnings() const { return warnings_; }

  private:
    static constexpr EntryNumber Step = 256;

    const Part& PartAt(EntryNumber entry) const;
    void TakeStamp(EntryNumber entry, const Stamp& stamp);

    EntryNumber count_; // of the entries; 0 for a table without events
    EntryStamps stamps_;
    std::vector<std::int16_t> types_; // by number of kind
    const EntryTable& entries_;
    EntryNumber next_ = 0;
    std::optional<Stamp> before_;
    Place length_{0};           // and the place of the entry that was taken last
    std::vector<Part> parts_;   // none before the first readable stamp
    std::vector<Place> places_; // of each Step-th entry
    EntrySet errors_;
    EntrySet warnings_;
};

// A session on the strip of time.
struct SessionSpan {
    Timeline::Place Begin;       // its start
    Timeline::Place RecordedEnd; // its last entry; Begin when it has none
    Timeline::Place End;         // the next start; RecordedEnd for the last session

    bool operator==(const SessionSpan&) const = default;
};

// The spans of a logbook's sessions, none of which begins before the one before it. A start that no entry
// stands for lies between the entries around it.
std::vector<SessionSpan> SpansOf(std::span<const Session> sessions, const Timeline& timeline);
