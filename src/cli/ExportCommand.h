// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitStatus.h"
#include "settings/Language.h"

#include <string>

struct ExportOptions {
    std::string File;
    std::string Format = "jsonl"; // or "csv"
    std::string Output;           // "" = standard output
    bool Raw = false;             // CSV: no guard against text that a spreadsheet would run
    std::string Filters;          // a filter file; "" = none
    bool StoredFilters = false;   // the filters of the user's settings
    bool ArchiveFilters = false;  // the filters that the program's own archive carries, if it does
    Language MessageLanguage;     // of messages on standard error
};

// Prints the list of a logbook, a row a line: all entries, or those that the filters let through. Memory does
// not grow with the rows printed. What goes wrong is told on standard error; nothing has then been printed,
// and an output file is as it was. Only comments of an archive that cannot be read do not count as that.
int RunExport(const ExportOptions& options);
