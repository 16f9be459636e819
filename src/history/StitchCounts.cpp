// SPDX-License-Identifier: MIT
#include "history/StitchCounts.h"

#include "history/EntriesAtPlaces.h"

#include <algorithm>
#include <cstddef>
#include <map>

namespace {

// At the beginning of an export, lines may belong to an entry that began before it. This many entries are
// more than enough to find one that begins in both.
constexpr std::size_t EntriesToTry = 1000;

// The places in the logbook where entries of an export begin, with their numbers there.
std::map<std::uint64_t, std::int64_t> BeginningOf(const StitchedLog& log,
                                                  std::span<const ExportLines> exports, std::size_t number) {
    std::map<std::uint64_t, std::int64_t> numbers;
    const std::vector<std::uint64_t> places = PlacesOfFirstEntries(exports[number].Path(), EntriesToTry);
    for (std::size_t i = 0; i < places.size(); ++i)
        if (const std::optional<std::uint64_t> place = log.PlaceOf(number, places[i]))
            numbers[*place] = static_cast<std::int64_t>(i);
    return numbers;
}

} // namespace

std::vector<StitchCounts> CountEntries(const StitchedLog& log, const std::string& file,
                                       std::span<const ExportLines> exports, const StitchPlan& plan) {
    std::vector<std::map<std::uint64_t, std::int64_t>> beginnings;
    std::map<std::uint64_t, std::optional<EntryAtPlace>> known;
    for (std::size_t i = 0; i < plan.Pairs.size(); ++i) {
        const StitchPlan::Pair& pair = plan.Pairs[i];
        const bool isReadAlike =
            exports[pair.Newer].LogbookForm() == exports[plan.Order.front()].LogbookForm();
        beginnings.push_back(isReadAlike ? BeginningOf(log, exports, pair.Newer)
                                         : std::map<std::uint64_t, std::int64_t>{});
        const StitchedLog::Range range = log.CommonRange(i);
        known[range.Begin];
        known[range.End];
        for (const auto& [place, number] : beginnings.back())
            known[place];
    }
    std::vector<std::uint64_t> places;
    places.reserve(known.size());
    for (const auto& [place, entry] : known)
        places.push_back(place);
    const auto entries = EntriesAt(file, places);
    for (std::size_t i = 0; i < places.size(); ++i)
        known[places[i]] = entries[i];

    std::vector<StitchCounts> counts(plan.Pairs.size());
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const StitchedLog::Range range = log.CommonRange(i);
        if (known[range.Begin] && known[range.End])
            counts[i].CommonEntries = known[range.End]->Number - known[range.Begin]->Number;
        const auto both =
            std::find_if(beginnings[i].begin(), beginnings[i].end(), [&](const auto& beginning) {
                const std::optional<EntryAtPlace>& entry = known[beginning.first];
                return entry && entry->IsBeginning;
            });
        if (both != beginnings[i].end())
            counts[i].Shift = known[both->first]->Number - both->second;
    }
    return counts;
}
