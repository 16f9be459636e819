// SPDX-License-Identifier: MIT
#pragma once

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

// Saves the logbook that is shown, with its comments and the active filters, as an archive that the user
// names, at first in the folder of the last one. Before there is one, which the program's folder stands for,
// that is the logbook's own folder, unless it is the temporary one. Before texts lose characters, before a
// logbook file that has been changed since it was read goes in, and before the archive that it came from is
// replaced though somebody else has changed it, the user is asked. A failure is told with its reason; an
// archive of that name is then as it was.
//
// Comments that would be lost with an archive of that name, other than by a change of this user, can be kept
// too, where that archive holds the same logbook, or the beginning of it; the user is asked. Without Saved
// the entries have the comments that they had.
//
// Saved: no comments are edited any more, and the archive's folder is stored. Without a logbook nothing
// happens: Cancelled.
ZipOutcome ZipLogbook(LogbookState& state, const ZipLogbookParts& parts, UserInterface& user,
                      Language language, const PackingProgress& progress = {});
