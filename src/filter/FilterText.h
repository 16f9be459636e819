// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"

#include <string>
#include <string_view>

// The one-line text of a filter, in the settings and in filter files: action letter ("I" include, "X"
// exclude, "H" highlight), type, data text or number list, name, sender, and "1" when it is active, joined by
// "|". Nothing is escaped, so a "|" inside a text makes the line invalid.

// False when the text is no filter; `filter` then has no meaning. The older form without the last field is
// read as active.
bool ParseFilter(std::string_view text, FilterDefinition& filter);
std::string FormatFilter(const FilterDefinition& filter);

// The same for a string filter: text, comment, "1". Reading takes any text.
StringFilter ParseStringFilter(std::string_view text);
std::string FormatStringFilter(const StringFilter& filter);
