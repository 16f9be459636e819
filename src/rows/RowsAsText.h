// SPDX-License-Identifier: MIT
#pragma once

#include "rows/RowRanges.h"
#include "settings/Language.h"

#include <string>

// The rows of the ranges as text for other programs, UTF-8: a line with the column headers, then a line a
// row, the cells separated by tabs. A tab or line end inside a cell becomes a blank.
std::string RowsAsText(const EntryTable& entries, const LogbookRows& rows, const RowRanges& ranges,
                       Language language);
