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
    SavedWithMore, // and the entries now have the kept comments of the archive that was replaced
    Cancelled,
    Failed,
};

// What saving needs besides the state of the logbook.
struct ZipLogbookParts {
    EntryTable& Entries;
    std::span<const FilterDefinition> Filters; // the active ones
    const CodePage& FileCodePage;
    const TempFolder& Temp;
    Registry& Settings;
    std::string ProgramFolder; // with its trailing separator
};

// Saves the logbook that is shown, with its comments and the active filters, as an archive. All decisions are
// made before anything is written. A failure is reported with its reason; an archive of that name then stays
// as it was.
//
// It proposes the folder of the last archive. As long as there was none, which the program's folder stands
// for, it proposes the logbook's own folder, unless that is the temporary one.
//
// The entries get the comments that are kept of a replaced archive. If nothing was saved, they have the
// comments that they had.
//
// When it has saved, no comments count as edited any more, and the archive's folder is stored. Without a
// logbook it does nothing and returns Cancelled.
ZipOutcome ZipLogbook(LogbookState& state, const ZipLogbookParts& parts, ArchiveDecisions& decisions,
                      UserInterface& user, Language language, const PackingProgress& progress = {});
