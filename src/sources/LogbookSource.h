// SPDX-License-Identifier: MIT
#pragma once

#include "base/TempFolder.h"
#include "settings/Language.h"
#include "settings/UserInterface.h"

#include <optional>
#include <string>
#include <string_view>

// A source that has been resolved to the one plain logbook file that is to be read.
struct LogbookSource {
    std::string Name = {};         // the file name up to its first "."
    std::string LogbookFile = {};  // "" when an archive has none; may not exist. Reading then gives an empty
                                   // list
    std::string CommentsFile = {}; // "" = none
    std::string FilterFile = {};   // the filters that the person wants in place of the active ones; "" = none

    // What messages call these files: a file of its own by its path, one of an archive by the archive's path
    // and its name there, as "/home/me/a.qorvix: a.fil". In the temporary folder nobody knows them.
    std::string LogbookName = {};
    std::string CommentsName = {};
    std::string FilterName = {};
};

// True for service archives (*.zip) and the program's own (*.qorvix), whatever the case of their names.
bool IsArchive(std::string_view fileName);

// Finds the logbook of a source: a plain logbook file is its own; of a service archive or an own archive, the
// logbook with its filters and comments is unpacked into the temporary folder.
//
// Nothing when the person cancelled at the question about the filters; the files of the logbook that was
// opened before are then untouched. An archive without a logbook is told, and gives none.
std::optional<LogbookSource> ResolveSource(const std::string& path, const TempFolder& tempFolder,
                                           UserInterface& user, Language language);
