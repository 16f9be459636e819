// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class Registry;

// Why a filter does not come back from the settings as it was. With one such filter in it, the whole filter
// list comes back as the default list; a string filter comes back cut, or empty. Whoever lets a person write
// one says so before it is stored.
enum class StorageObstacle : std::uint8_t {
    None,
    Separator, // a text holds "|", which separates the fields
    TooLong,   // every text form is longer than a text of the settings may be
};

StorageObstacle ObstacleOf(const FilterDefinition& filter);
StorageObstacle ObstacleOf(const StringFilter& filter);

// The filter lists as the settings hold them. A list that is missing, or in which a filter cannot be parsed,
// is replaced by the default list as a whole. The stored string filters come back with one more, empty,
// behind them, which the next SaveFilters stores too; that is deliberate.
FilterLists LoadFilters(const Registry& registry, Language language);

// Replaces the stored lists and the folder of filter files, in one write of the settings. A filter that fits
// into a text of the settings only in a form that LoadFilters reads, too, is written in that: without the
// flag where it is active, with an empty one where it is not; a string filter without what is passed over.
// Without a folder ("") the stored one stays, or none.
void SaveFilters(Registry& registry, const FilterLists& lists, std::string_view initFilterDir);

// The folder of filter files, `programFolder` where none is stored.
std::string FilterFolder(const Registry& registry, std::string_view programFolder);

// The filters alone. IsStored is false when the default list stands in for what the settings hold.
struct StoredFilters {
    std::vector<FilterDefinition> Filters;
    bool IsStored = false;
};
StoredFilters LoadFilterList(const Registry& registry);

// Changes of the stored filters that leave the rest as it is: one filter, by its place in the list from 0,
// and their number. A filter whose text the settings could not give back is not written: it would take the
// whole list with it.
void WriteFilter(Registry& registry, std::size_t place, const FilterDefinition& filter);
void WriteFilterCount(Registry& registry, std::size_t count);

// How many characters the data text or number list of this filter may have, so that the settings give the
// filter back in its usual form.
std::size_t RoomForText(FilterDefinition filter);
