// SPDX-License-Identifier: MIT
#include "history/ErrorStatistics.h"

#include "history/KeyNumbers.h"
#include "logbook/EntryStamps.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace {

constexpr std::chrono::milliseconds EpisodeGap = std::chrono::minutes(1);
constexpr std::chrono::milliseconds ChatterTime = std::chrono::minutes(1);
constexpr std::size_t LeastChatter = 3;

// The stamps of the last minute; those before Begin are no longer of it.
class LastMinute {
  public:
    std::size_t Count() const { return stamps_.size() - begin_; }
    const Stamp& Front() const { return stamps_[begin_]; }
    const Stamp& Back() const { return stamps_.back(); }

    void Clear() {
        stamps_.clear();
        begin_ = 0;
    }
    void PopFront() { ++begin_; }
    void PushBack(const Stamp& stamp) {
        if (begin_ > stamps_.size() / 2) {
            stamps_.erase(stamps_.begin(), stamps_.begin() + static_cast<std::ptrdiff_t>(begin_));
            begin_ = 0;
        }
        stamps_.push_back(stamp);
    }

  private:
    std::vector<Stamp> stamps_;
    std::size_t begin_ = 0;
};

// An error while its entries are counted.
struct Counted {
    ErrorRecord Record;
    std::size_t LastSession = ~std::size_t{0};
    std::optional<Stamp> Before; // of its last entry
    LastMinute Minute;
    bool ClearedSince = false; // a message has followed its last entry, in the same session
};

} // namespace

class ErrorsRun::Counting {
  public:
    Counting(const EntryTable& entries, const ErrorKeys& keys, const ErrorChoice& choice)
        : entries_(entries), stamps_(entries), keys_(keys), choice_(choice) {
        for (std::uint32_t kind = 0; kind < entries.Kinds().Count(); ++kind)
            roles_.push_back(RoleOf(entries.Kinds()[kind]));
    }

    // Takes entries of a session, which has this number.
    void TakeEntries(std::size_t number, EntryNumber first, EntryNumber end) {
        for (EntryNumber entry = first; entry < end; ++entry) {
            const Role role = roles_[entries_.KindNumber(entry)];
            if (role == Role::Error && (choice_.Entries.empty() || choice_.Entries[entry]))
                TakeError(entry, number);
            else if (role == Role::Cleared)
                TakeCleared(entry, number);
        }
    }

    std::vector<ErrorRecord> Take() {
        std::vector<ErrorRecord> records;
        records.reserve(counted_.size());
        for (Counted& counted : counted_) {
            EndEpisode(counted);
            if (cleared_.contains(counted.Record.Key))
                counted.Record.Cleared = counted.Record.Cleared.value_or(0);
            records.push_back(std::move(counted.Record));
        }
        std::sort(records.begin(), records.end(), [](const ErrorRecord& a, const ErrorRecord& b) {
            return a.Entries != b.Entries ? a.Entries > b.Entries : a.Key < b.Key;
        });
        return records;
    }

  private:
    enum class Role : std::uint8_t { None, Error, Cleared };

    Role RoleOf(const EntryKind& kind) const {
        if ((EventTypes::IsError(kind.EventType) && choice_.Errors) ||
            (kind.EventType == EventTypes::Warning && choice_.Warnings))
            return Role::Error;
        return kind.Image == Images::ErrorCleared ? Role::Cleared : Role::None;
    }

    // The key of an error by its number.
    auto KeyOf() const {
        return [this](std::size_t number) -> const std::string& { return counted_[number].Record.Key; };
    }

    Counted& Find(EntryNumber entry) {
        const EntryKind& kind = entries_.Kind(entry);
        const ErrorKeys::Form form = keys_.MakeKey(entries_.Data(entry), kind.Sender, kind.Name, key_);
        const std::size_t number = numbers_.FindOrAdd(key_, KeyOf());
        if (number == counted_.size()) {
            Counted& counted = counted_.emplace_back();
            counted.Record.Key = key_;
            counted.Record.Form = form;
            counted.Record.First = entry;
            counted.Record.FirstStamp = stamps_[entry];
        }
        return counted_[number];
    }

    void TakeError(EntryNumber entry, std::size_t session) {
        Counted& counted = Find(entry);
        ErrorRecord& record = counted.Record;
        const std::optional<Stamp> stamp = stamps_[entry];
        ++record.Entries;
        record.EventType = std::max(record.EventType, entries_.Kind(entry).EventType);
        record.Last = entry;
        record.LastStamp = stamp;

        const bool sameSession = counted.LastSession == session;
        const bool goesOn =
            sameSession && counted.Before && stamp && IsWithin(*counted.Before, *stamp, EpisodeGap);
        if (!sameSession)
            ++record.Sessions;
        if (!goesOn) {
            EndEpisode(counted);
            ++record.Episodes;
        }
        counted.ClearedSince = false;
        TakeMinute(counted, sameSession, stamp);
        counted.LastSession = session;
        counted.Before = stamp;
    }

    static bool IsWithin(const Stamp& from, const Stamp& to, std::chrono::milliseconds most) {
        const std::chrono::milliseconds between = TimeBetween(from, to);
        return between >= between.zero() && between <= most;
    }

    // An entry without a readable stamp is near nothing, and leaves the others as they are.
    static void TakeMinute(Counted& counted, bool sameSession, const std::optional<Stamp>& stamp) {
        LastMinute& minute = counted.Minute;
        if (!sameSession)
            minute.Clear();
        if (!stamp)
            return;
        if (minute.Count() > 0 && TimeBetween(minute.Back(), *stamp) < std::chrono::milliseconds(0))
            minute.Clear();
        while (minute.Count() > 0 && !IsWithin(minute.Front(), *stamp, ChatterTime))
            minute.PopFront();
        minute.PushBack(*stamp);
        if (minute.Count() >= LeastChatter)
            counted.Record.Chattering =
                std::max(counted.Record.Chattering, static_cast<std::uint32_t>(minute.Count()));
    }

    void TakeCleared(EntryNumber entry, std::size_t session) {
        const std::string code = keys_.ClearedCode(entries_.Data(entry));
        if (code.empty())
            return;
        cleared_.insert(code);
        const std::optional<std::size_t> number = numbers_.Find(code, KeyOf());
        if (!number)
            return;
        Counted& counted = counted_[*number];
        counted.ClearedSince = counted.ClearedSince || counted.LastSession == session;
    }

    static void EndEpisode(Counted& counted) {
        if (std::exchange(counted.ClearedSince, false))
            counted.Record.Cleared = counted.Record.Cleared.value_or(0) + 1;
    }

    const EntryTable& entries_;
    EntryStamps stamps_;
    const ErrorKeys& keys_;
    const ErrorChoice& choice_;
    std::vector<Role> roles_; // by number of kind
    std::string key_;         // its room is used again
    KeyNumbers numbers_;      // of errors by their keys
    std::deque<Counted> counted_;
    std::unordered_set<std::string> cleared_; // the codes that such messages name
};

ErrorsRun::ErrorsRun(const EntryTable& entries, std::span<const Session> sessions, const ErrorKeys& keys,
                     const ErrorChoice& choice)
    : sessions_(sessions), counting_(std::make_unique<Counting>(entries, keys, choice)) {}

ErrorsRun::~ErrorsRun() = default;

bool ErrorsRun::Go(std::size_t most) {
    while (place_ < sessions_.size() && most > 0) {
        const Session& session = sessions_[place_];
        next_ = std::max(next_, session.First);
        const EntryNumber end =
            next_ + static_cast<EntryNumber>(std::min<std::size_t>(session.End - next_, most));
        counting_->TakeEntries(place_, next_, end);
        most -= std::max<std::size_t>(end - next_, 1);
        next_ = end;
        if (next_ < session.End)
            break;
        ++place_;
    }
    return place_ < sessions_.size();
}

std::vector<ErrorRecord> ErrorsRun::Take() { return counting_->Take(); }

std::vector<ErrorRecord> ErrorsOf(const EntryTable& entries, std::span<const Session> sessions,
                                  const ErrorKeys& keys, const ErrorChoice& choice) {
    ErrorsRun run(entries, sessions, keys, choice);
    while (run.Go(entries.Count() + sessions.size() + 1)) {
    }
    return run.Take();
}
