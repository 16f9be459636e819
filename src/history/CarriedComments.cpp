// SPDX-License-Identifier: MIT
#include "history/CarriedComments.h"

#include "history/EntriesAtPlaces.h"
#include "logbook/EventLines.h"

#include <algorithm>
#include <optional>
#include <set>

namespace {

// The places in the logbook of the comments' raw lines.
std::vector<std::optional<std::uint64_t>> PlacesInLog(const StitchedLog& log,
                                                      std::span<const ExportLines> exports,
                                                      std::span<const CommentOfExport> comments) {
    std::map<std::size_t, std::set<std::int64_t>> numbersByExport;
    for (const CommentOfExport& comment : comments)
        numbersByExport[comment.Export].insert(comment.Entry);
    std::map<std::pair<std::size_t, std::int64_t>, std::uint64_t> known;
    for (const auto& [exportNumber, set] : numbersByExport) {
        const std::vector<std::int64_t> numbers(set.begin(), set.end());
        const auto places = PlacesOfEntries(exports[exportNumber].Path(), numbers);
        for (std::size_t i = 0; i < numbers.size(); ++i)
            if (places[i])
                if (const auto there = log.PlaceOf(exportNumber, *places[i]))
                    known[{exportNumber, numbers[i]}] = *there;
    }
    std::vector<std::optional<std::uint64_t>> found;
    for (const CommentOfExport& comment : comments) {
        const auto place = known.find({comment.Export, comment.Entry});
        found.push_back(place == known.end() ? std::nullopt : std::optional(place->second));
    }
    return found;
}

// The entries that begin at these places.
std::map<std::uint64_t, EntryNumber> EntriesThere(const std::string& file,
                                                  const std::vector<std::optional<std::uint64_t>>& places) {
    std::set<std::uint64_t> ascending;
    for (const std::optional<std::uint64_t>& place : places)
        if (place)
            ascending.insert(*place);
    const std::vector<std::uint64_t> wanted(ascending.begin(), ascending.end());
    const auto entries = EntriesAt(file, wanted);
    std::map<std::uint64_t, EntryNumber> numbers;
    for (std::size_t i = 0; i < wanted.size(); ++i)
        if (entries[i] && entries[i]->IsBeginning)
            numbers[wanted[i]] = static_cast<EntryNumber>(entries[i]->Number);
    return numbers;
}

// A comment that was carried before may be several that were joined then.
std::vector<std::string_view> PartsOf(std::string_view text) {
    std::vector<std::string_view> parts;
    for (std::size_t end; (end = text.find(LineSeparator)) != std::string_view::npos;) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + LineSeparator.size());
    }
    parts.push_back(text);
    return parts;
}

} // namespace

CarriedComments CarryComments(const StitchedLog& log, const std::string& file,
                              std::span<const ExportLines> exports,
                              std::span<const CommentOfExport> comments) {
    const auto places = PlacesInLog(log, exports, comments);
    const auto entries = EntriesThere(file, places);
    CarriedComments carried;
    std::map<EntryNumber, std::set<std::string_view>> texts;
    for (std::size_t i = 0; i < comments.size(); ++i) {
        const auto entry = places[i] ? entries.find(*places[i]) : entries.end();
        if (entry == entries.end()) {
            carried.Unplaced.push_back(comments[i]);
            continue;
        }
        std::string& placed = carried.Placed[entry->second];
        for (const std::string_view part : PartsOf(comments[i].Text))
            if (texts[entry->second].insert(part).second)
                placed.append(placed.empty() ? std::string_view{} : LineSeparator).append(part);
    }
    return carried;
}
