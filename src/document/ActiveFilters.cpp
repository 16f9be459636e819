// SPDX-License-Identifier: MIT
#include "document/ActiveFilters.h"

#include "filter/FilterStorage.h"
#include "settings/Registry.h"

#include <algorithm>

namespace {
constexpr std::string_view NumbersLogbookSetting = "NumberFiltersLogbook";
}

std::vector<FilterDefinition> StoredActiveFilters::Load() const { return LoadFilterList(registry_).Filters; }

bool StoredActiveFilters::Replace(std::vector<FilterDefinition> filters, Language language) {
    const auto hasObstacle = [](const FilterDefinition& filter) {
        return ObstacleOf(filter) != StorageObstacle::None;
    };
    if (std::any_of(filters.begin(), filters.end(), hasObstacle))
        return false;
    FilterLists lists = LoadFilters(registry_, language);
    lists.Filters = std::move(filters);
    SaveFilters(registry_, lists, "");
    return true;
}

std::optional<std::string> StoredActiveFilters::NumbersMadeFor() const {
    return registry_.ReadLogbookSettingString(NumbersLogbookSetting, "");
}

void StoredActiveFilters::NumbersAreMadeFor(std::string_view identity) {
    if (NumbersMadeFor() != identity)
        registry_.WriteLogbookSetting(NumbersLogbookSetting, std::string(identity), SettingType::Text);
}
