// SPDX-License-Identifier: MIT
#include "filter/FiltersFromEntries.h"

#include "filter/WrappedNumberList.h"
#include "settings/Registry.h"

#include <algorithm>
#include <utility>

namespace {

FilterDefinition NumberFilter(std::int16_t action) {
    return {action, FilterTypes::Numbers, "", "", "", true};
}

bool IsNumberFilter(const FilterDefinition& filter, std::int16_t action) {
    return filter.Action == action && filter.FilterType == FilterTypes::Numbers && filter.Active;
}

} // namespace

NumberFilters::NumberFilters(Registry& registry, std::int16_t action)
    : registry_(registry), action_(action), stored_(LoadFilterList(registry)) {
    FindPlaces();
    for (const std::size_t place : places_)
        list_.Append(stored_.Filters[place].StringFilter);
}

// Finds the first number filter of the action, and those that continue its list.
void NumberFilters::FindPlaces() {
    const FilterDefinition* last = nullptr; // of those that are not empty
    for (std::size_t place = 0; place < stored_.Filters.size(); ++place) {
        const FilterDefinition& filter = stored_.Filters[place];
        if (!IsNumberFilter(filter, action_))
            continue;
        const bool isEmpty = filter.StringFilter.empty();
        if (last != nullptr) {
            const bool asNew = filter.Name.empty() && filter.Emitter.empty();
            if (!asNew ||
                (!isEmpty && !GoesOnIn(last->StringFilter, RoomForText(*last), filter.StringFilter)))
                continue;
        }
        places_.push_back(place);
        if (last == nullptr || !isEmpty)
            last = &filter;
    }
}

void NumberFilters::Add(EntryNumber number) {
    used_ = true;
    changed_ = list_.Add(number) || changed_;
}

bool NumberFilters::Remove(EntryNumber number) {
    if (places_.empty() && !used_)
        return false;
    used_ = true;
    changed_ = list_.Remove(number) || changed_;
    return true;
}

void NumberFilters::Write() {
    if (!used_)
        return;
    const std::size_t count = stored_.Filters.size();
    std::vector<std::size_t> changed; // places in the list of filters
    if (changed_) {
        const FilterDefinition like = NumberFilter(action_);
        const std::size_t room = RoomForText(like);
        const std::size_t firstRoom = places_.empty() ? room : RoomForText(stored_.Filters[places_.front()]);
        std::vector<std::string> texts = WrapNumberList(list_.Text(), firstRoom, room);
        texts.resize(std::max(texts.size(), places_.size()));
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const bool isNew = i == places_.size();
            if (isNew) {
                places_.push_back(stored_.Filters.size());
                stored_.Filters.push_back(like);
            }
            std::string& stored = stored_.Filters[places_[i]].StringFilter;
            if (i == 0 || isNew || stored != texts[i])
                changed.push_back(places_[i]);
            stored = std::move(texts[i]);
        }
    } else {
        changed.push_back(places_.front());
    }

    const Registry::Transaction transaction(registry_);
    if (!stored_.IsStored)
        for (std::size_t place = 0; place < count; ++place)
            WriteFilter(registry_, place, stored_.Filters[place]);
    for (const std::size_t place : changed)
        WriteFilter(registry_, place, stored_.Filters[place]);
    if (stored_.Filters.size() != count)
        WriteFilterCount(registry_, stored_.Filters.size());
    stored_.IsStored = true;
    used_ = false;
    changed_ = false;
}

bool AddEntryToFilter(Registry& registry, EntryNumber number, std::int16_t action) {
    NumberFilters filters(registry, action);
    filters.Add(number);
    filters.Write();
    return true;
}

bool RemoveEntryFromFilter(Registry& registry, EntryNumber number, std::int16_t action) {
    NumberFilters filters(registry, action);
    const bool found = filters.Remove(number);
    filters.Write();
    return found;
}
