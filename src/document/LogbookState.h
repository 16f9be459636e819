// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileStamp.h"
#include "logbook/EntryTable.h"

#include <optional>
#include <set>
#include <string>

// What the program knows of the logbook that is shown. Whoever reads entries sets all but the folder anew;
// what is read again from its plain file keeps its archive.
struct LogbookState {
    std::string CurrentLogbookFile;               // the logbook text file; "" = none
    std::string CurrentLogbookName;               // what messages call that file; "" = its path
    std::optional<FileStamp> CurrentFileStamp;    // of that file before it was read; nothing = not known
    std::string CurrentArchive;                   // that it came from or was saved as last; "" = none
    std::optional<FileStamp> CurrentArchiveStamp; // of that archive before it was read, or after the saving
    std::set<EntryNumber> ChangedComments;        // of these entries, since they were read or last saved
    bool CommentsEdited = false;                  // since it was read or last saved
    std::string InitZipArchiveDir; // where an archive was saved last, with its trailing separator
};
