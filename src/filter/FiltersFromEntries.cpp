// SPDX-License-Identifier: MIT
#include "filter/FiltersFromEntries.h"

#include "settings/Registry.h"

namespace {

FilterDefinition NumberFilter(std::int16_t action) {
    return {action, FilterTypes::Numbers, "", "", "", true};
}

bool IsNumberFilter(const FilterDefinition& filter, std::int16_t action) {
    return filter.Action == action && filter.FilterType == FilterTypes::Numbers && filter.Active;
}

} // namespace

NumberFilters::NumberFilters(Registry& registry, std::int16_t action)
    : registry_(registry),
      action_(action),
      stored_(LoadFilterList(registry)),
      lists_(RoomForText(NumberFilter(action))) {
    for (std::size_t place = 0; place < stored_.Filters.size(); ++place) {
        const FilterDefinition& filter = stored_.Filters[place];
        if (!IsNumberFilter(filter, action))
            continue;
        places_.push_back(place);
        lists_.Append(filter.StringFilter, RoomForText(filter));
    }
}

bool NumberFilters::Add(EntryNumber number) {
    lists_.Add(number);
    return true;
}

void NumberFilters::Write() {
    std::vector<std::size_t> changed; // places in the list of filters
    const std::size_t count = stored_.Filters.size();
    for (std::size_t list = 0; list < lists_.Count(); ++list) {
        if (list == places_.size()) {
            places_.push_back(stored_.Filters.size());
            stored_.Filters.push_back(NumberFilter(action_));
        }
        if (!lists_.IsUsed(list))
            continue;
        stored_.Filters[places_[list]].StringFilter = lists_.Text(list);
        changed.push_back(places_[list]);
    }
    if (changed.empty())
        return;

    const Registry::Transaction transaction(registry_);
    if (!stored_.IsStored)
        for (std::size_t place = 0; place < count; ++place)
            WriteFilter(registry_, place, stored_.Filters[place]);
    for (const std::size_t place : changed)
        WriteFilter(registry_, place, stored_.Filters[place]);
    if (stored_.Filters.size() != count)
        WriteFilterCount(registry_, stored_.Filters.size());
    stored_.IsStored = true;
}

bool AddEntryToFilter(Registry& registry, EntryNumber number, std::int16_t action) {
    NumberFilters filters(registry, action);
    const bool added = filters.Add(number);
    filters.Write();
    return added;
}

bool RemoveEntryFromFilter(Registry& registry, EntryNumber number, std::int16_t action) {
    NumberFilters filters(registry, action);
    const bool found = filters.Remove(number);
    filters.Write();
    return found;
}
