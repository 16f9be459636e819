// SPDX-License-Identifier: MIT
#include "history/Sessions.h"

#include "history/SummerTime.h"
#include "logbook/EntryStamps.h"

#include <algorithm>
#include <numeric>

namespace {

// Takes the stamps of a logbook in its order, and keeps what they say of each session.
class SessionStamps {
  public:
    void Begin() { first_.reset(); }

    void Take(const std::optional<Stamp>& stamp, Session& session) {
        if (!stamp)
            return;
        if (before_ && TimeBetween(*before_, *stamp) < Session::Duration(0)) {
            ++session.ClockSteps;
            session.SummerTimeSteps += MayEndSummerTime(*before_, *stamp) ? 1U : 0U;
        }
        before_ = stamp;
        if (first_)
            session.Recorded = std::max(TimeBetween(*first_, *stamp), Session::Duration(0));
        else
            first_ = stamp;
    }

  private:
    std::optional<Stamp> first_;  // of the session
    std::optional<Stamp> before_; // of the logbook
};

// Counts the entries of a session and takes their stamps. An entry that stands for the session's start has
// the stamp that was taken with it.
void TakeEntries(const EntryTable& entries, std::span<const std::int16_t> types, const EntryStamps& stamps,
                 bool startIsEntry, SessionStamps& taken, Session& session) {
    std::optional<Stamp> errorStamp;
    for (EntryNumber number = session.First; number < session.End; ++number) {
        const std::optional<Stamp> stamp = stamps[number];
        if (!startIsEntry || number != session.First)
            taken.Take(stamp, session);
        if (stamp)
            session.LastEntry = stamp;
        const std::int16_t type = types[entries.KindNumber(number)];
        if (type == EventTypes::Warning)
            ++session.Warnings;
        if (!EventTypes::IsError(type))
            continue;
        ++session.Errors;
        session.LastError = number;
        errorStamp = stamp;
    }
    if (errorStamp && session.LastEntry)
        session.LastErrorBeforeEnd =
            std::max(TimeBetween(*errorStamp, *session.LastEntry), Session::Duration(0));
}

} // namespace

std::vector<Session> SessionsOf(const EntryTable& entries, std::span<const LogbookStart> starts) {
    const EntryNumber count = entries.HasEvents() ? entries.Count() : 0;
    const EntryStamps stamps(entries);
    std::vector<Session> sessions;
    const EntryNumber firstStart = starts.empty() ? count : std::min(starts.front().Entry, count);
    if (firstStart > 0)
        sessions.push_back({.First = 0, .End = firstStart});
    for (std::size_t i = 0; i < starts.size(); ++i)
        sessions.push_back({.StartRecorded = true,
                            .Start = starts[i].Time,
                            .First = std::min(starts[i].Entry, count),
                            .End = i + 1 < starts.size() ? std::min(starts[i + 1].Entry, count) : count});

    std::vector<std::int16_t> types; // by number of kind
    for (std::uint32_t kind = 0; kind < entries.Kinds().Count(); ++kind)
        types.push_back(entries.Kinds()[kind].EventType);
    SessionStamps taken;
    for (std::size_t i = 0; i < sessions.size(); ++i) {
        Session& session = sessions[i];
        taken.Begin();
        taken.Take(session.Start, session);
        const bool startIsEntry = session.StartRecorded && session.EntryCount() > 0 &&
                                  entries.Kind(session.First).EventType == EventTypes::Restart;
        TakeEntries(entries, types, stamps, startIsEntry, taken, session);
        if (i + 1 < sessions.size() && session.Start && sessions[i + 1].Start)
            session.ToNext =
                std::max(TimeBetween(*session.Start, *sessions[i + 1].Start), Session::Duration(0));
    }
    return sessions;
}

Session::Duration RecordedTime(std::span<const Session> sessions) {
    return std::accumulate(sessions.begin(), sessions.end(), Session::Duration(0),
                           [](Session::Duration sum, const Session& session) {
                               return sum + session.Recorded.value_or(Session::Duration(0));
                           });
}

std::optional<Session::Duration> MostTime(std::span<const Session> sessions) {
    Session::Duration sum{0};
    bool bounded = false;
    for (const Session& session : sessions) {
        const Session::Duration recorded = session.Recorded.value_or(Session::Duration(0));
        sum += std::max(session.ToNext.value_or(recorded), recorded);
        bounded = bounded || session.ToNext;
    }
    return bounded ? std::optional(sum) : std::nullopt;
}
