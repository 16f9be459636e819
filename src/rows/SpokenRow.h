// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "settings/Language.h"

#include <string>

// What a screen reader says for the first cell of a row: the event type as the cell shows it, and in words
// what its icon alone tells, as in "Info, mouse click, highlighted".
std::string SpokenRow(const EntryTable& entries, const LogbookRow& row, Language language);
