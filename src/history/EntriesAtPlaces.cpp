// SPDX-License-Identifier: MIT
#include "history/EntriesAtPlaces.h"

#include "base/FileStamp.h"
#include "base/StopRequest.h"
#include "logbook/Mod_FileHandling.h"
#include "logbook/ReadingProgress.h"

namespace {

// Shows nothing. Ends a read that waits at the end of the file, which nobody would ever stop: it lets events
// run more often without an entry than the file has MiB.
class QuietProgress : public ReadingProgress {
  public:
    void SetValue(double) override {}
    void ProcessPendingEvents() override {}
    bool StopWanted() const override { return StopRequest::IsMade(); }
    bool WaitsForBlockEnd() const override { return false; }
    void ShowMessage(std::string_view) override {}
};

// True when the read came to the end of the file, or `take` ended it.
template <typename Take>
bool ReadPlaces(const std::string& logbook, const Take& take) {
    QuietProgress progress;
    return ReadEntryPlaces(logbook, progress, take);
}

} // namespace

std::vector<std::uint64_t> PlacesOfFirstEntries(const std::string& logbook, std::size_t most) {
    std::vector<std::uint64_t> places;
    if (most != 0)
        ReadPlaces(logbook, [&](std::int64_t, std::uint64_t place) {
            places.push_back(place);
            return places.size() < most;
        });
    return places;
}

std::vector<std::optional<std::uint64_t>> PlacesOfEntries(const std::string& logbook,
                                                          std::span<const std::int64_t> numbers) {
    std::vector<std::optional<std::uint64_t>> places(numbers.size());
    std::size_t next = 0;
    while (next < numbers.size() && numbers[next] < 0)
        ++next;
    if (next != numbers.size())
        ReadPlaces(logbook, [&](std::int64_t number, std::uint64_t place) {
            for (; next < numbers.size() && numbers[next] == number; ++next)
                places[next] = place;
            return next < numbers.size();
        });
    return places;
}

std::vector<std::optional<EntryAtPlace>> EntriesAt(const std::string& logbook,
                                                   std::span<const std::uint64_t> places) {
    std::vector<std::optional<EntryAtPlace>> entries(places.size());
    std::size_t next = 0;
    std::int64_t count = 0;
    if (places.empty())
        return entries;
    const bool isRead = ReadPlaces(logbook, [&](std::int64_t number, std::uint64_t place) {
        for (; next < places.size() && places[next] <= place; ++next)
            entries[next] = EntryAtPlace{.Number = number, .IsBeginning = places[next] == place};
        count = number + 1;
        return next < places.size();
    });
    for (; isRead && next < places.size(); ++next)
        entries[next] = EntryAtPlace{.Number = count};
    return entries;
}
