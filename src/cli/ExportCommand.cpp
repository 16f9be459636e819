// SPDX-License-Identifier: MIT
#include "cli/ExportCommand.h"

#include "cli/ReadSource.h"

int RunExport(const ListOptions& options) {
    SourceLogbook logbook;
    LogbookRows rows;
    if (!ReadList(options, logbook, rows))
        return ExitStatus::Failed;
    return PrintRows(options, logbook.Book.Entries, rows);
}
