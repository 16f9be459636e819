// SPDX-License-Identifier: MIT
#include "filter/FiltersInForce.h"

#include "filter/NumberList.h"

#include <algorithm>
#include <iterator>

namespace {

bool IsByNumber(const FilterDefinition& filter) { return filter.FilterType == FilterTypes::Numbers; }

bool CanMatchAnEntry(const FilterDefinition& filter) {
    if (!filter.Active || filter.FilterType < 0 || filter.FilterType >= FilterTypes::Count)
        return false;
    return !IsByNumber(filter) || AnyNumberPart(filter.StringFilter, [](std::string_view part) {
        return ParseNumberPart(part).has_value();
    });
}

bool AddsAllEntries(const FilterDefinition& filter) {
    return filter.Active && filter.Action == FilterActions::Include &&
           filter.FilterType == FilterTypes::All && filter.StringFilter.empty();
}

} // namespace

bool IsAllEntries(const std::vector<FilterDefinition>& filters) {
    return std::any_of(filters.begin(), filters.end(), AddsAllEntries) &&
           std::all_of(filters.begin(), filters.end(), [](const FilterDefinition& filter) {
               return AddsAllEntries(filter) || !CanMatchAnEntry(filter);
           });
}

bool HaveSameNumbers(const std::vector<FilterDefinition>& filters,
                     const std::vector<FilterDefinition>& others) {
    auto filter = filters.begin();
    auto other = others.begin();
    for (;; ++filter, ++other) {
        filter = std::find_if(filter, filters.end(), IsByNumber);
        other = std::find_if(other, others.end(), IsByNumber);
        if (filter == filters.end() || other == others.end())
            return filter == filters.end() && other == others.end();
        if (*filter != *other)
            return false;
    }
}

bool HideByNumber(const std::vector<FilterDefinition>& filters) {
    return std::any_of(filters.begin(), filters.end(), [](const FilterDefinition& filter) {
        return filter.Active && IsByNumber(filter) && filter.Action != FilterActions::Highlight;
    });
}

std::vector<FilterDefinition> WithChange(const std::vector<FilterDefinition>& inForce,
                                         const std::vector<FilterDefinition>& before,
                                         const std::vector<FilterDefinition>& after) {
    if (inForce == before)
        return after;
    const auto [firstBefore, firstAfter] =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto [lastBefore, lastAfter] =
        std::mismatch(before.rbegin(), std::make_reverse_iterator(firstBefore), after.rbegin(),
                      std::make_reverse_iterator(firstAfter));
    std::vector<FilterDefinition> changed = inForce;
    for (auto gone = firstBefore; gone != lastBefore.base(); ++gone) {
        const auto place = std::find(changed.begin(), changed.end(), *gone);
        if (place != changed.end())
            changed.erase(place);
    }
    changed.insert(changed.end(), firstAfter, lastAfter.base());
    return changed;
}
