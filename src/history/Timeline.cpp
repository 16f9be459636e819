// SPDX-License-Identifier: MIT
#include "history/Timeline.h"

#include <algorithm>

Timeline::Timeline(const EntryTable& entries)
    : count_(entries.HasEvents() ? entries.Count() : 0),
      stamps_(entries),
      entries_(entries),
      errors_(count_),
      warnings_(count_) {
    for (std::uint32_t kind = 0; kind < entries.Kinds().Count(); ++kind)
        types_.push_back(entries.Kinds()[kind].EventType);
    places_.reserve((count_ + Step - 1) / Step);
}

bool Timeline::Go(std::size_t most) {
    const EntryNumber end = next_ + static_cast<EntryNumber>(std::min<std::size_t>(count_ - next_, most));
    for (; next_ < end; ++next_) {
        if (const std::optional<Stamp> stamp = stamps_[next_])
            TakeStamp(next_, *stamp);
        if (next_ % Step == 0)
            places_.push_back(length_);
        const std::int16_t type = types_[entries_.KindNumber(next_)];
        if (EventTypes::IsError(type))
            errors_.Add(next_);
        else if (type == EventTypes::Warning)
            warnings_.Add(next_);
    }
    return next_ < count_;
}

void Timeline::TakeStamp(EntryNumber entry, const Stamp& stamp) {
    const bool isBreak = before_ && TimeBetween(*before_, stamp) < Place(0) && parts_.size() < MostParts;
    // Entries before the first readable stamp belong to the part that begins with it.
    if (parts_.empty() || isBreak)
        parts_.push_back({parts_.empty() ? 0 : entry, stamp.Moment, length_});
    before_ = stamp;
    length_ = std::max(length_, parts_.back().Offset + (stamp.Moment - parts_.back().Begin));
}

const Timeline::Part& Timeline::PartAt(EntryNumber entry) const {
    return *std::prev(
        std::upper_bound(parts_.begin(), parts_.end(), entry,
                         [](EntryNumber number, const Part& part) { return number < part.First; }));
}

Timeline::Place Timeline::PlaceOf(EntryNumber entry) const {
    if (parts_.empty())
        return Place(0);
    const Part& part = PartAt(entry);
    const EntryNumber begin = entry / Step * Step;
    for (EntryNumber number = entry;; --number) {
        if (const std::optional<Stamp> stamp = stamps_[number])
            return std::max(places_[begin / Step], part.Offset + (stamp->Moment - part.Begin));
        if (number == begin)
            return places_[begin / Step];
    }
}

EntryNumber Timeline::FirstAt(Place place) const {
    const auto block = std::lower_bound(places_.begin(), places_.end(), place);
    // The entries of the step before may reach the place, too.
    const auto behind = static_cast<EntryNumber>(block - places_.begin()) * Step;
    for (EntryNumber entry = behind < Step ? 0 : behind - Step; entry < std::min(behind, count_); ++entry)
        if (PlaceOf(entry) >= place)
            return entry;
    return std::min(behind, count_);
}

std::optional<Timeline::Time> Timeline::TimeAt(Place place) const {
    if (parts_.empty())
        return std::nullopt;
    auto part = std::lower_bound(parts_.begin(), parts_.end(), place,
                                 [](const Part& p, Place wanted) { return p.Offset < wanted; });
    if (part != parts_.begin())
        --part;
    return part->Begin + (place - part->Offset);
}

std::vector<SessionSpan> SpansOf(std::span<const Session> sessions, const Timeline& timeline) {
    std::vector<SessionSpan> spans;
    spans.reserve(sessions.size());
    Timeline::Place before{0};    // the last place that was recorded
    std::optional<Stamp> reached; // and the stamp there
    for (const Session& session : sessions) {
        const bool hasEntries = session.EntryCount() > 0;
        const Timeline::Place next =
            session.First < timeline.Errors().End() ? timeline.PlaceOf(session.First) : timeline.Length();
        Timeline::Place begin = hasEntries ? next : before;
        // A start lies as far behind the entry before it as time has gone on.
        if (session.Start && reached)
            begin = std::min(next, before + TimeBetween(*reached, *session.Start));
        begin = std::max(begin, before);
        const Timeline::Place recordedEnd =
            hasEntries ? std::max(begin, timeline.PlaceOf(session.End - 1)) : begin;
        if (!spans.empty())
            spans.back().End = begin;
        spans.push_back({begin, recordedEnd, recordedEnd});
        before = recordedEnd;
        if (session.LastEntry || session.Start)
            reached = session.LastEntry ? session.LastEntry : session.Start;
    }
    return spans;
}
