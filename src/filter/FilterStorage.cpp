// SPDX-License-Identifier: MIT
#include "filter/FilterStorage.h"

#include "base/UnicodeCase.h"
#include "filter/FilterText.h"
#include "settings/Registry.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <variant>

namespace {

constexpr std::string_view FilterCountName = "FilterCount";
constexpr std::string_view FilterName = "Filter";
constexpr std::string_view StringFilterCountName = "SpecialFilterCount";
constexpr std::string_view StringFilterName = "StringFilter";
constexpr std::string_view FolderName = "InitFilterDir";

// Missing string filters read as empty ones, but beyond this number they end the list, so that a damaged
// count does not make billions of them.
constexpr std::int32_t MostMissing = 1000;

// The numbered values count from 1.
std::string Numbered(std::string_view name, std::size_t number) {
    return std::string(name).append(std::to_string(number));
}

std::vector<StringFilter> LoadStringFilterList(const Registry& registry, Language language) {
    const std::int32_t count = registry.ReadFilterSettingLong(StringFilterCountName, 0);
    if (count < 1)
        return DefaultStringFilters(language);
    std::vector<StringFilter> filters;
    for (std::int32_t number = 1; number <= count; ++number) {
        // A default of the other kind distinguishes a missing text from an empty one.
        const SettingValue text =
            registry.ReadSetting(Numbered(StringFilterName, static_cast<std::size_t>(number)), 0,
                                 SettingType::Text, SubKeys::Filters);
        const bool missing = !std::holds_alternative<std::string>(text);
        if (missing && number > MostMissing)
            break;
        filters.push_back(missing ? StringFilter{} : ParseStringFilter(std::get<std::string>(text)));
    }
    filters.emplace_back();
    return filters;
}

void WriteList(Registry& registry, std::string_view name, std::string_view countName,
               const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        registry.WriteFilterSetting(Numbered(name, i + 1), texts[i], SettingType::Text);
    registry.WriteFilterSetting(countName, static_cast<std::int32_t>(texts.size()), SettingType::Integer);
}

// The usual text form or, when only that is too long to be read back, a shorter one with the same meaning.
std::string ShorterIfNeeded(std::string text, std::string shorter) {
    return !Registry::IsReadBack(text) && Registry::IsReadBack(shorter) ? std::move(shorter)
                                                                        : std::move(text);
}

// Filters of the older form (no flag, active) and empty flags come from elsewhere.
std::string TextToStore(const FilterDefinition& filter) {
    constexpr std::size_t FlagWithSeparator = 2;
    const std::string text = FormatFilter(filter);
    return ShorterIfNeeded(text, text.substr(0, text.size() - (filter.Active ? FlagWithSeparator : 1)));
}

// Reading ignores the text behind the comment, and an empty comment may be missing.
std::string TextToStore(const StringFilter& filter) {
    return ShorterIfNeeded(FormatStringFilter(filter), filter.Comment.empty()
                                                           ? filter.FilterString
                                                           : filter.FilterString + '|' + filter.Comment);
}

template <typename Filter>
std::vector<std::string> TextsToStore(const std::vector<Filter>& filters) {
    std::vector<std::string> texts;
    texts.reserve(filters.size());
    for (const Filter& filter : filters)
        texts.push_back(TextToStore(filter));
    return texts;
}

StorageObstacle ObstacleOf(std::initializer_list<std::string_view> texts, std::string_view textForm) {
    const auto holdsSeparator = [](std::string_view text) {
        return text.find('|') != std::string_view::npos;
    };
    if (std::any_of(texts.begin(), texts.end(), holdsSeparator))
        return StorageObstacle::Separator;
    return Registry::IsReadBack(textForm) ? StorageObstacle::None : StorageObstacle::TooLong;
}

} // namespace

std::vector<std::string> StoredFilterTexts(const Registry& registry) {
    const std::int32_t count = registry.ReadFilterSettingLong(FilterCountName, 0);
    std::vector<std::string> texts;
    for (std::int32_t number = 1; number <= count; ++number) {
        texts.push_back(
            registry.ReadFilterSettingString(Numbered(FilterName, static_cast<std::size_t>(number)), ""));
        // An empty text is no filter, and a damaged number of filters may be any.
        if (texts.back().empty())
            break;
    }
    return texts;
}

StoredFilters FiltersOf(std::span<const std::string> texts) {
    std::vector<FilterDefinition> filters;
    filters.reserve(texts.size());
    for (const std::string& text : texts) {
        FilterDefinition filter;
        if (!ParseFilter(text, filter))
            return {DefaultFilters(), false};
        filters.push_back(std::move(filter));
    }
    if (filters.empty())
        return {DefaultFilters(), false};
    return {std::move(filters), true};
}

StoredFilters LoadFilterList(const Registry& registry) { return FiltersOf(StoredFilterTexts(registry)); }

void WriteFilterText(Registry& registry, std::size_t place, const std::string& text) {
    registry.WriteFilterSetting(Numbered(FilterName, place + 1), text, SettingType::Text);
}

void WriteFilter(Registry& registry, std::size_t place, const FilterDefinition& filter) {
    const std::string text = TextToStore(filter);
    if (Registry::IsReadBack(text))
        registry.WriteFilterSetting(Numbered(FilterName, place + 1), text, SettingType::Text);
}

void WriteFilterCount(Registry& registry, std::size_t count) {
    registry.WriteFilterSetting(FilterCountName, static_cast<std::int32_t>(count), SettingType::Integer);
}

std::size_t RoomForText(FilterDefinition filter) {
    filter.StringFilter.clear();
    const std::size_t others = CharacterCount(FormatFilter(filter));
    return Registry::LongestText - std::min(others, Registry::LongestText);
}

StorageObstacle ObstacleOf(const FilterDefinition& filter) {
    return ObstacleOf({filter.StringFilter, filter.Name, filter.Emitter}, TextToStore(filter));
}

StorageObstacle ObstacleOf(const StringFilter& filter) {
    return ObstacleOf({filter.FilterString, filter.Comment}, TextToStore(filter));
}

FilterLists LoadFilters(const Registry& registry, Language language) {
    return {LoadFilterList(registry).Filters, LoadStringFilterList(registry, language)};
}

void SaveFilters(Registry& registry, const FilterLists& lists, std::string_view initFilterDir) {
    const std::string folder =
        initFilterDir.empty() ? FilterFolder(registry, "") : std::string(initFilterDir);
    const Registry::Transaction transaction(registry);
    registry.DeleteFilterKey();
    WriteList(registry, FilterName, FilterCountName, TextsToStore(lists.Filters));
    WriteList(registry, StringFilterName, StringFilterCountName, TextsToStore(lists.StringFilters));
    if (!folder.empty())
        registry.WriteFilterSetting(FolderName, folder, SettingType::Text);
}

std::string FilterFolder(const Registry& registry, std::string_view programFolder) {
    // No folder has an empty name: an empty one was stored when there was no folder.
    std::string folder = registry.ReadFilterSettingString(FolderName, "");
    return folder.empty() ? std::string(programFolder) : folder;
}
