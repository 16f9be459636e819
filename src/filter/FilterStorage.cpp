// SPDX-License-Identifier: MIT
#include "filter/FilterStorage.h"

#include "filter/FilterText.h"
#include "settings/Registry.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace {

constexpr std::string_view FilterCountName = "FilterCount";
constexpr std::string_view FilterName = "Filter";
constexpr std::string_view StringFilterCountName = "SpecialFilterCount";
constexpr std::string_view StringFilterName = "StringFilter";
constexpr std::string_view FolderName = "InitFilterDir";

// A count beyond this is damage: missing string filters read as empty ones, and there shall not be billions
// of them.
constexpr std::int32_t MostStringFilters = 32767;

// The numbered values count from 1.
std::string Numbered(std::string_view name, std::size_t number) {
    return std::string(name).append(std::to_string(number));
}

std::vector<FilterDefinition> LoadFilterList(const Registry& registry) {
    const std::int32_t count = registry.ReadFilterSettingLong(FilterCountName, 0);
    std::vector<FilterDefinition> filters;
    for (std::int32_t number = 1; number <= count; ++number) {
        FilterDefinition filter;
        if (!ParseFilter(
                registry.ReadFilterSettingString(Numbered(FilterName, static_cast<std::size_t>(number)), ""),
                filter))
            return DefaultFilters();
        filters.push_back(std::move(filter));
    }
    return filters.empty() ? DefaultFilters() : filters;
}

std::vector<StringFilter> LoadStringFilterList(const Registry& registry, Language language) {
    const std::int32_t count =
        std::min(registry.ReadFilterSettingLong(StringFilterCountName, 0), MostStringFilters);
    if (count < 1)
        return DefaultStringFilters(language);
    std::vector<StringFilter> filters;
    for (std::int32_t number = 1; number <= count; ++number)
        filters.push_back(ParseStringFilter(registry.ReadFilterSettingString(
            Numbered(StringFilterName, static_cast<std::size_t>(number)), "")));
    filters.emplace_back();
    return filters;
}

void WriteList(Registry& registry, std::string_view name, std::string_view countName,
               const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        registry.WriteFilterSetting(Numbered(name, i + 1), texts[i], SettingType::Text);
    registry.WriteFilterSetting(countName, static_cast<std::int32_t>(texts.size()), SettingType::Integer);
}

} // namespace

FilterLists LoadFilters(const Registry& registry, Language language) {
    return {LoadFilterList(registry), LoadStringFilterList(registry, language)};
}

void SaveFilters(Registry& registry, const FilterLists& lists, std::string_view initFilterDir) {
    std::vector<std::string> filters;
    std::transform(lists.Filters.begin(), lists.Filters.end(), std::back_inserter(filters), FormatFilter);
    std::vector<std::string> stringFilters;
    std::transform(lists.StringFilters.begin(), lists.StringFilters.end(), std::back_inserter(stringFilters),
                   FormatStringFilter);

    const Registry::Transaction transaction(registry);
    registry.DeleteFilterKey();
    WriteList(registry, FilterName, FilterCountName, filters);
    WriteList(registry, StringFilterName, StringFilterCountName, stringFilters);
    registry.WriteFilterSetting(FolderName, std::string(initFilterDir), SettingType::Text);
}
