// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "logbook/EntryTable.h"
#include "rows/CsvLine.h"
#include "settings/Language.h"

#include <functional>
#include <string>

// Which list a command prints, and how: what all commands that print rows have in common.
struct ListOptions {
    std::string File;
    RowForm Form;                // "jsonl", "csv" or "html"
    std::string Output;          // "" = standard output
    std::string Filters;         // a filter file; "" = none
    bool StoredFilters = false;  // the filters of the user's settings
    bool ArchiveFilters = false; // the filters that the program's own archive carries, if it does
    bool Partial = false;        // what could be read of a logbook with an error in it
    Language MessageLanguage;    // of messages on standard error, and of HTML
};

// Opens the logbook, makes the rows that its filters let through, and prints them, a row a line. With
// `choose` it prints the rows that `choose` returns; if there are none, the command fails. Returns the exit
// status. Failures are reported on standard error; an output file then stays as it was. Comments that cannot
// be read are reported, but are no failure.
int PrintList(
    const ListOptions& options,
    const std::function<LogbookRows(const EntryTable& entries, const LogbookRows& rows)>& choose = {});
