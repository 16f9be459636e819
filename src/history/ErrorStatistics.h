// SPDX-License-Identifier: MIT
#pragma once

#include "history/ErrorKey.h"
#include "history/Sessions.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

// What a logbook records of one error or warning.
struct ErrorRecord {
    std::string Key;
    ErrorKeys::Form Form = ErrorKeys::Form::Words;
    std::int16_t EventType = 0; // the highest of its entries
    EntryNumber First = 0;
    EntryNumber Last = 0;
    std::optional<Stamp> FirstStamp; // of these two entries; nothing where it cannot be read
    std::optional<Stamp> LastStamp;

    std::uint32_t Entries = 0;
    // Entries of one session whose neighbours are at most a minute apart are one episode. An entry whose
    // stamp cannot be read, or is earlier than its neighbour's, begins a new one.
    std::uint32_t Episodes = 0;
    std::uint32_t Sessions = 0; // that hold an entry
    // The most entries within a minute of one session, both ends included; 0 below three. An entry that is
    // earlier than its neighbour begins anew: the clock was set, and the two are not known to be near.
    std::uint32_t Chattering = 0;
    // The episodes that were followed in their session by a message that the error was cleared, before the
    // error came again. Nothing when no such message names this error: then its end is unknown.
    std::optional<std::uint32_t> Cleared;

    bool operator==(const ErrorRecord&) const = default;
};

// Which entries count: a set of event types, and a choice among the entries (empty = all).
struct ErrorChoice {
    bool Errors = true; // types Error and Fatal
    bool Warnings = false;
    std::vector<bool> Entries = {}; // by entry number
};

// The errors of a logbook, the most frequent first, among equals in the order of their keys (bytes). Messages
// that an error was cleared count whether or not they are chosen.
//
// One pass over the entries. Memory for the errors, not for their entries, but for those of a minute.
std::vector<ErrorRecord> ErrorsOf(const EntryTable& entries, std::span<const Session> sessions,
                                  const ErrorKeys& keys, const ErrorChoice& choice = {});

// The same in parts, for a window that stays alive meanwhile.
class ErrorsRun {
  public:
    // All must outlive this.
    ErrorsRun(const EntryTable& entries, std::span<const Session> sessions, const ErrorKeys& keys,
              const ErrorChoice& choice);
    ~ErrorsRun();
    ErrorsRun(const ErrorsRun&) = delete;
    ErrorsRun& operator=(const ErrorsRun&) = delete;

    // Takes at most so many further entries; a session without entries counts as one. False when none is
    // left.
    bool Go(std::size_t most);

    // The errors, once none is left.
    std::vector<ErrorRecord> Take();

  private:
    class Counting;

    std::span<const Session> sessions_;
    std::unique_ptr<Counting> counting_;
    std::size_t place_ = 0; // of the session whose entries are being taken
    EntryNumber next_ = 0;
};
