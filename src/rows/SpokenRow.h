// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "settings/Language.h"

#include <string>

// The words of a screen reader for the first cell of a row: the event type as in the cell, and the meaning of
// its icon, as in "Info, mouse click, highlighted".
std::string SpokenRow(const EntryTable& entries, const LogbookRow& row, Language language);
