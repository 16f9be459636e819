// SPDX-License-Identifier: MIT
#pragma once

#include "document/ArchiveDecisions.h"
#include "document/LogbookState.h"
#include "settings/Registry.h"
#include "settings/UserInterface.h"
#include "sources/LogbookArchive.h"

#include <cstdint>
#include <span>
#include <string>

enum class ZipOutcome : std::uint8_t {
    Saved,
    SavedWithMore, // comments of the archive that was replaced are now those of the entries, too
    Cancelled,
    Failed,
};

// What saves the logbook that is shown, besides its state.
struct ZipLogbookParts {
    EntryTable& Entries;
    std::span<const FilterDefinition> Filters; // the active ones
    const CodePage& FileCodePage;
    const TempFolder& Temp;
    Registry& Settings;
    std::string ProgramFolder; // with its trailing separator
};

// Saves the logbook that is shown, with its comments and the active filters, as the archive that is decided
// on; the folder of the last one is proposed. Before there is one, which the program's folder stands for,
// that is the logbook's own folder, unless it is the temporary one. ArchiveDecisions names what else is
// decided before anything is written. A failure is reported with its reason; an archive of that name is then
// as it was.
//
// Comments of an archive of that name that are kept become those of the entries, too. Without Saved the
// entries have the comments that they had.
//
// Saved: no comments are edited any more, and the archive's folder is stored. Without a logbook nothing
// happens: Cancelled.
ZipOutcome ZipLogbook(LogbookState& state, const ZipLogbookParts& parts, ArchiveDecisions& decisions,
                      UserInterface& user, Language language, const PackingProgress& progress = {});
