// SPDX-License-Identifier: MIT
#include "filter/FilterMatches.h"

#include <algorithm>
#include <string_view>
#include <utility>

bool MatchKind(const FilterDefinition& filter, const EntryKind& kind) {
    if (filter.FilterType < 0 || filter.FilterType >= FilterTypes::Count)
        return false;
    if (filter.FilterType == FilterTypes::All || filter.FilterType == FilterTypes::Numbers)
        return true;
    if (kind.EventType != filter.FilterType)
        return false;
    if (filter.FilterType > FilterTypes::Fatal)
        return true;
    return (filter.Name.empty() || filter.Name == kind.Name) &&
           (filter.Emitter.empty() || filter.Emitter == kind.Sender);
}

void FilterMatches::Add(const FilterDefinition& filter, std::size_t group) {
    if (filter.FilterType == FilterTypes::Numbers) {
        numbers_.push_back({group, ParseNumberList(filter.StringFilter), 0});
        return;
    }
    const EntryKinds& kinds = entries_.Kinds();
    std::vector<bool> fits(kinds.Count());
    for (std::uint32_t kind = 0; kind < kinds.Count(); ++kind)
        fits[kind] = MatchKind(filter, kinds[kind]);
    if (!filter.StringFilter.empty()) {
        texts_.push_back({group, TextSearcher(filter.StringFilter), std::move(fits)});
        return;
    }
    for (std::uint32_t kind = 0; kind < kinds.Count(); ++kind)
        if (fits[kind])
            kinds_[kind] |= static_cast<std::uint8_t>(1U << group);
}

void FilterMatches::BeginBatch(EntryNumber first, EntryNumber end) {
    batchBegin_ = first;
    matched_ = {};
    for (const TextCondition& condition : texts_)
        MarkText(condition, first, end);
    for (NumberCondition& condition : numbers_)
        MarkNumbers(condition, first, end);
}

void FilterMatches::MarkText(const TextCondition& condition, EntryNumber first, EntryNumber end) {
    const std::string_view text = entries_.Text().substr(0, entries_.TextBegin(end));
    EntryNumber number = first;
    std::size_t place = entries_.TextBegin(first);
    while ((place = condition.Text.Find(text, place)) != TextSearcher::NotFound) {
        number = entries_.EntryAt(place, number);
        // A found text may lie behind the entry's data, in its stamp, or reach into the stamp or the next
        // entry.
        const std::size_t dataEnd = entries_.TextBegin(number) + entries_.Data(number).size();
        if (place + condition.Text.Text().size() <= dataEnd && condition.Kinds[entries_.KindNumber(number)])
            Mark(condition.Group, number);
        place = entries_.TextBegin(number + 1);
    }
}

void FilterMatches::MarkNumbers(NumberCondition& condition, EntryNumber first, EntryNumber end) {
    const std::vector<NumberRange>& ranges = condition.Ranges;
    while (condition.Next < ranges.size() && ranges[condition.Next].Last < first)
        ++condition.Next;
    for (std::size_t i = condition.Next; i < ranges.size() && ranges[i].First < end; ++i) {
        const EntryNumber rangeEnd = std::min(ranges[i].Last, end - 1) + 1;
        for (EntryNumber number = std::max(ranges[i].First, first); number < rangeEnd; ++number)
            Mark(condition.Group, number);
    }
}
