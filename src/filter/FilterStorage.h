// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"

#include <string_view>

class Registry;

// The filter lists as the settings hold them. A list that is missing, or in which a filter cannot be parsed,
// is replaced by the default list as a whole. The stored string filters come back with one more, empty,
// behind them, which the next SaveFilters stores too; that is deliberate.
FilterLists LoadFilters(const Registry& registry, Language language);

// Replaces the stored lists and the folder of filter files, in one write of the settings.
void SaveFilters(Registry& registry, const FilterLists& lists, std::string_view initFilterDir);
