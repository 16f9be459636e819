// SPDX-License-Identifier: MIT
#include "rows/SearchCandidates.h"

#include "base/CaselessSearchers.h"
#include "base/UnicodeCase.h"

#include <algorithm>

namespace {

constexpr std::size_t MostBytesOfCharacter = 4;

void MarkEventTypes(const EntryTable& entries, const SearchState& search, std::vector<bool>& marked) {
    CellTest test(search);
    const EntryKinds& kinds = entries.Kinds();
    std::vector<bool> fits(kinds.Count());
    for (std::uint32_t kind = 0; kind < kinds.Count(); ++kind)
        fits[kind] = IsEventType(kinds[kind].EventType) && test.Matches(EventTypeName(kinds[kind].EventType));
    if (std::find(fits.begin(), fits.end(), true) == fits.end())
        return;
    for (EntryNumber number = 0; number < entries.Count(); ++number)
        if (fits[entries.KindNumber(number)])
            marked[number] = true;
}

// A found place may also lie in a time stamp behind the data, or reach into the next entry. An occurrence in
// the data holds the found place, or begins behind the place's entry.
void MarkData(const EntryTable& entries, const TextSearcher& searcher, std::vector<bool>& marked) {
    EntryNumber number = 0;
    std::size_t place = 0;
    while ((place = searcher.Find(entries.Text(), place)) != TextSearcher::NotFound) {
        number = entries.EntryAt(place, number);
        marked[number] = true;
        place = entries.TextBegin(number + 1);
    }
}

// With whole words, data of the text's own length matches.
void MarkDataOfLength(const EntryTable& entries, std::size_t characters, std::vector<bool>& marked) {
    for (EntryNumber number = 0; number < entries.Count(); ++number) {
        const std::string_view data = entries.Data(number);
        if (data.size() >= characters && data.size() <= characters * MostBytesOfCharacter &&
            CharacterCount(data) == characters)
            marked[number] = true;
    }
}

} // namespace

std::vector<bool> SearchCandidates(const EntryTable& entries, const SearchState& search) {
    // An empty text is in every cell.
    if (search.SearchText.empty() || !IsUtf8(search.SearchText))
        return std::vector<bool>(entries.Count(), true);

    std::vector<bool> marked(entries.Count());
    MarkEventTypes(entries, search, marked);
    if (search.SearchCaseSensitive != 0)
        MarkData(entries, TextSearcher(search.SearchText), marked);
    else
        for (const TextSearcher& searcher : CaselessSearchers(UnicodeLower(search.SearchText)))
            MarkData(entries, searcher, marked);
    if (search.SearchWholeWord != 0)
        MarkDataOfLength(entries, CharacterCount(search.SearchText), marked);
    for (const auto& [number, comment] : entries.Comments())
        marked[number] = true;
    return marked;
}
