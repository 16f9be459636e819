// SPDX-License-Identifier: MIT
#include "cli/FindCommand.h"

#include "rows/ListSearch.h"

int RunFind(const ListOptions& options, const SearchState& search) {
    return PrintList(options, [&](const EntryTable& entries, const LogbookRows& rows) {
        return MatchingRows(entries, rows, search);
    });
}
