// SPDX-License-Identifier: MIT
#pragma once

#include "document/LogbookState.h"
#include "filter/LogbookRow.h"
#include "settings/Registry.h"
#include "settings/UserInterface.h"

#include <functional>

// The list that is exported, and what is known of its logbook.
struct ListToExport {
    const EntryTable& Entries;
    const LogbookRows& Rows;
    const LogbookState& State;
    Registry& Settings; // which hold the folder of the last export
};

enum class ExportOutcome {
    Exported,
    Cancelled, // before anything was written; or no logbook is open
    Ended,     // by the person
    Failed,    // which has been reported
};

// Asks for a file, and writes the rows to it as they stand: for spreadsheets as those of the language expect
// it, as JSON Lines, or as a page of HTML. A list without rows gives a file without rows. The file takes its
// place as a whole; unless the outcome is Exported, everything stays as it was.
//
// Calls `goesOn` with the percentage done, again and again; false ends the export. It must change neither
// entries nor rows.
ExportOutcome ExportList(const ListToExport& list, UserInterface& user, Language language,
                         const std::function<bool(double percent)>& goesOn);
