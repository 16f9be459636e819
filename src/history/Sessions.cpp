// SPDX-License-Identifier: MIT
#include "history/Sessions.h"

#include "history/SummerTime.h"

#include <algorithm>
#include <numeric>

SessionsRun::SessionsRun(const EntryTable& entries, std::span<const LogbookStart> starts)
    : entries_(entries), stamps_(entries) {
    const EntryNumber count = entries.HasEvents() ? entries.Count() : 0;
    const EntryNumber firstStart = starts.empty() ? count : std::min(starts.front().Entry, count);
    sessions_.reserve(starts.size() + 1);
    if (firstStart > 0)
        sessions_.push_back({.First = 0, .End = firstStart});
    for (std::size_t i = 0; i < starts.size(); ++i)
        sessions_.push_back({.StartRecorded = true,
                             .Start = starts[i].Time,
                             .First = std::min(starts[i].Entry, count),
                             .End = i + 1 < starts.size() ? std::min(starts[i + 1].Entry, count) : count});
    for (std::uint32_t kind = 0; kind < entries.Kinds().Count(); ++kind)
        types_.push_back(entries.Kinds()[kind].EventType);
    if (!sessions_.empty())
        Begin();
}

bool SessionsRun::Go(std::size_t most) {
    while (place_ < sessions_.size() && most > 0) {
        Session& session = sessions_[place_];
        const auto taken = static_cast<EntryNumber>(std::min<std::size_t>(session.End - next_, most));
        TakeEntries(session, next_ + taken);
        most -= std::max<std::size_t>(taken, 1);
        if (next_ < session.End)
            break;
        End();
        if (++place_ < sessions_.size())
            Begin();
    }
    return place_ < sessions_.size();
}

void SessionsRun::Begin() {
    Session& session = sessions_[place_];
    next_ = session.First;
    first_.reset();
    errorStamp_.reset();
    TakeStamp(session.Start, session);
}

void SessionsRun::TakeStamp(const std::optional<Stamp>& stamp, Session& session) {
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

// Counts entries of a session, from the next one to before `end`, and takes their stamps. An entry that
// stands for the session's start has the stamp that was taken with it.
void SessionsRun::TakeEntries(Session& session, EntryNumber end) {
    const bool startIsEntry = session.StartRecorded && next_ == session.First && next_ < session.End &&
                              types_[entries_.KindNumber(next_)] == EventTypes::Restart;
    for (bool isStart = startIsEntry; next_ < end; ++next_, isStart = false) {
        const std::optional<Stamp> stamp = stamps_[next_];
        if (!isStart)
            TakeStamp(stamp, session);
        if (stamp)
            session.LastEntry = stamp;
        const std::int16_t type = types_[entries_.KindNumber(next_)];
        if (type == EventTypes::Warning)
            ++session.Warnings;
        if (!EventTypes::IsError(type))
            continue;
        ++session.Errors;
        session.LastError = next_;
        errorStamp_ = stamp;
    }
}

void SessionsRun::End() {
    Session& session = sessions_[place_];
    if (errorStamp_ && session.LastEntry)
        session.LastErrorBeforeEnd =
            std::max(TimeBetween(*errorStamp_, *session.LastEntry), Session::Duration(0));
    if (place_ + 1 < sessions_.size() && session.Start && sessions_[place_ + 1].Start)
        session.ToNext =
            std::max(TimeBetween(*session.Start, *sessions_[place_ + 1].Start), Session::Duration(0));
}

std::vector<Session> SessionsOf(const EntryTable& entries, std::span<const LogbookStart> starts) {
    SessionsRun run(entries, starts);
    while (run.Go(entries.Count() + starts.size() + 1)) {
    }
    return run.Take();
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
