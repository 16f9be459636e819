// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class Registry;

// Why a filter does not come back from the settings unchanged. One such filter makes the whole filter list
// come back as the default list; a string filter comes back cut, or empty. A dialog that lets a person write
// such a filter warns before it is stored.
enum class StorageObstacle : std::uint8_t {
    None,
    Separator, // a text holds "|", which separates the fields
    TooLong,   // no text form of it fits into a text of the settings
};

StorageObstacle ObstacleOf(const FilterDefinition& filter);
StorageObstacle ObstacleOf(const StringFilter& filter);

// The filter lists from the settings. A list that is missing, or has a filter that cannot be parsed, is
// replaced by the whole default list. An empty string filter follows the stored ones, and the next
// SaveFilters stores it, too; this is deliberate.
FilterLists LoadFilters(const Registry& registry, Language language);

// Replaces the stored lists and the folder of filter files, in one write of the settings. A filter that is
// too long for a text of the settings is written in a shorter form that LoadFilters also reads: an active one
// without the flag, an inactive one with an empty flag, a string filter without the part that reading
// ignores. With "" as the folder, the stored one stays.
void SaveFilters(Registry& registry, const FilterLists& lists, std::string_view initFilterDir);

// The stored folder of filter files, or `programFolder` when there is none.
std::string FilterFolder(const Registry& registry, std::string_view programFolder);

// The filters alone. IsStored is false when the default list replaces those in the settings.
struct StoredFilters {
    std::vector<FilterDefinition> Filters;
    bool IsStored = false;
};
StoredFilters LoadFilterList(const Registry& registry);

// The stored filters as texts, also those that cannot be parsed; none when no list is stored.
std::vector<std::string> StoredFilterTexts(const Registry& registry);

// The list that such texts are: the default list when there are none, or one cannot be parsed.
StoredFilters FiltersOf(std::span<const std::string> texts);

// Stores a text that came from StoredFilterTexts.
void WriteFilterText(Registry& registry, std::size_t place, const std::string& text);

// Change one stored filter, by its place in the list from 0, or the number of filters; everything else stays.
// A filter whose text the settings could not give back is not written, because it would spoil the whole list.
void WriteFilter(Registry& registry, std::size_t place, const FilterDefinition& filter);
void WriteFilterCount(Registry& registry, std::size_t count);

// How many characters this filter's data text or number list may have so that the settings give it back in
// its usual form.
std::size_t RoomForText(FilterDefinition filter);
