// SPDX-License-Identifier: MIT
#include "filter/FilterRun.h"

constexpr std::array<FilterRun::Decision, FilterRun::Cases> FilterRun::MakeDecisions() {
    std::array<Decision, Cases> decisions{};
    for (unsigned matched = 0; matched < decisions.size(); ++matched) {
        const bool shown = (matched >> Include & 1U) != 0 && (matched >> Exclude & 1U) == 0;
        const bool highlighted = (matched >> Highlight & 1U) != 0;
        decisions[matched] = !shown                                                  ? Decision::Hidden
                             : (matched >> FilterMatches::Groups & NoEventType) != 0 ? Decision::Invalid
                             : highlighted                                           ? Decision::Highlighted
                                                                                     : Decision::Shown;
    }
    return decisions;
}

constexpr std::array<FilterRun::Decision, FilterRun::Cases> FilterRun::Decisions = MakeDecisions();

FilterRun::FilterRun(const EntryTable& entries, std::span<const FilterDefinition> filters)
    : matches_(entries) {
    const EntryKinds& kinds = entries.Kinds();
    for (std::uint32_t kind = 0; kind < kinds.Count(); ++kind)
        matches_.Set(kind, IsEventType(kinds[kind].EventType) ? 0 : NoEventType);

    for (const FilterDefinition& filter : filters) {
        if (!filter.Active)
            continue;
        if (filter.Action == FilterActions::Include)
            matches_.Add(filter, Include);
        else if (filter.Action == FilterActions::Exclude)
            matches_.Add(filter, Exclude);
        else if (filter.Action == FilterActions::Highlight)
            matches_.Add(filter, Highlight);
    }
}
