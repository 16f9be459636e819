// SPDX-License-Identifier: MIT
#include "rows/RowsAsText.h"

#include "rows/LogbookColumns.h"

#include <algorithm>

namespace {

void AppendCell(std::string& text, std::string cell, int column) {
    std::replace_if(
        cell.begin(), cell.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
    text += cell;
    text += column + 1 < LogbookColumnCount ? '\t' : '\n';
}

} // namespace

std::string RowsAsText(const EntryTable& entries, const LogbookRows& rows, const RowRanges& ranges,
                       Language language) {
    std::string text;
    for (int column = 0; column < LogbookColumnCount; ++column)
        AppendCell(text, std::string(Text(LogbookColumns[static_cast<std::size_t>(column)].Header, language)),
                   column);
    for (const RowRange& range : ranges)
        for (std::size_t row = range.First; row <= range.Last; ++row)
            for (int column = 0; column < LogbookColumnCount; ++column)
                AppendCell(text, CellText(entries, rows[row].Entry, static_cast<LogbookColumn>(column)),
                           column);
    return text;
}
