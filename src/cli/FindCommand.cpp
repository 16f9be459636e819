// SPDX-License-Identifier: MIT
#include "cli/FindCommand.h"

#include "cli/ReadSource.h"
#include "rows/ListSearch.h"

int RunFind(const ListOptions& options, const SearchState& search) {
    SourceLogbook logbook;
    LogbookRows rows;
    if (!ReadList(options, logbook, rows))
        return ExitStatus::Failed;
    rows = MatchingRows(logbook.Book.Entries, rows, search);
    const int printed = PrintRows(options, logbook.Book.Entries, rows);
    return rows.empty() ? ExitStatus::Failed : printed;
}
