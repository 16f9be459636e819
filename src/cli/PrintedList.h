// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitStatus.h"
#include "filter/LogbookRow.h"
#include "logbook/EntryTable.h"
#include "settings/Language.h"

#include <string>

struct SourceLogbook;

// Which list a command prints, and how: what all commands that print rows have in common.
struct ListOptions {
    std::string File;
    std::string Format = "jsonl"; // or "csv"
    std::string Output;           // "" = standard output
    char Separator = ',';         // CSV: of fields
    bool ByteOrderMark = false;   // CSV: at the beginning
    bool Raw = false;             // CSV: no guard against text that a spreadsheet would run
    std::string Filters;          // a filter file; "" = none
    bool StoredFilters = false;   // the filters of the user's settings
    bool ArchiveFilters = false;  // the filters that the program's own archive carries, if it does
    Language MessageLanguage;     // of messages on standard error
};

// Reads the logbook and makes the rows that its filters let through. False when that failed, which has then
// been told on standard error. Comments of an archive that cannot be read do not count as that.
bool ReadList(const ListOptions& options, SourceLogbook& logbook, LogbookRows& rows);

// Prints rows of the list, a row a line, and returns the exit status. Memory does not grow with the rows
// printed. What goes wrong is told on standard error; an output file is then as it was.
int PrintRows(const ListOptions& options, const EntryTable& entries, const LogbookRows& rows);
