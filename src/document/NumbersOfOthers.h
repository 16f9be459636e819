// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "settings/Language.h"

#include <string>

// Filters by number that were made for another logbook than the one that is open, and hide entries of it.
struct NumbersOfOthers {
    EntryNumber Hidden = 0;
    bool Perhaps = false; // it is not known which logbook they were made for

    bool operator==(const NumbersOfOthers&) const = default;
};

// "Number filters of another logbook hide 12 entries."
std::string NumbersOfOthersText(const NumbersOfOthers& numbers, Language language);
