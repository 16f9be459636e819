// SPDX-License-Identifier: MIT
#pragma once

#include "rows/SelectionFacts.h"
#include "settings/Language.h"

#include <string>

// What is to say of the selected rows, in one line:
//
//     3 rows selected, from 04.01.2010 08:00:00 to 04.01.2010 08:05:00, time between: 0:05:00, errors among
//     them: 2
//     1 row selected, at 04.01.2010 08:05:00, since the entry before: 0:00:30, since the error before:
//     0:01:30
std::string SelectionText(const SelectionFacts& facts, Language language);
