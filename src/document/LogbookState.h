// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileStamp.h"
#include "logbook/EntryTable.h"

#include <optional>
#include <set>
#include <string>

// What the program knows of the logbook that is shown. Each opening sets all of it except the folder;
// reading the same file again keeps the archive.
struct LogbookState {
    std::string CurrentLogbookFile;               // the logbook text file; "" = none
    std::string CurrentLogbookName;               // what messages call that file; "" = its path
    std::optional<FileStamp> CurrentFileStamp;    // of that file before it was read; nothing = not known
    std::string CurrentArchive;                   // which it came from or was saved as last; "" = none
    std::optional<FileStamp> CurrentArchiveStamp; // of that archive before it was read, or after the saving
    std::set<EntryNumber> ChangedComments;        // entries whose comments are not saved
    bool CommentsEdited = false;                  // since the logbook was read or last saved
    std::string InitZipArchiveDir; // where an archive was saved last, with its trailing separator
};
