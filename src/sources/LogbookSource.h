// SPDX-License-Identifier: MIT
#pragma once

#include "base/TempFolder.h"
#include "settings/Language.h"
#include "settings/UserInterface.h"

#include <optional>
#include <string>
#include <string_view>

// A source that has been resolved to the one plain logbook file to read.
struct LogbookSource {
    std::string Name = {};         // the file name up to its first "."
    std::string LogbookFile = {};  // "" when an archive has none; it may not exist. Reading then gives an
                                   // empty list
    std::string CommentsFile = {}; // "" = none
    std::string FilterFile = {};   // the filters that the person wants instead of the active ones; "" = none

    // The names of these files in messages: a plain file has its path, a file of an archive the archive's
    // path and its name there, as "/home/me/a.qorvix: a.fil". Nobody knows their paths in the temporary
    // folder.
    std::string LogbookName = {};
    std::string CommentsName = {};
    std::string FilterName = {};
};

// True for service archives (*.zip) and the program's own (*.qorvix), whatever the case of their names.
bool IsArchive(std::string_view fileName);

// Finds the logbook of a source. A plain file is the logbook itself. From a service archive or an own
// archive, this unpacks the logbook with its filters and comments into the temporary folder.
//
// Nothing when the person cancels the question about the filters; the files of the logbook that was open
// before are then untouched. Reports an archive without a logbook; LogbookFile is then "".
std::optional<LogbookSource> ResolveSource(const std::string& path, const TempFolder& tempFolder,
                                           UserInterface& user, Language language);
