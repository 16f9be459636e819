// SPDX-License-Identifier: MIT
#pragma once

#include "sources/FileStamp.h"

#include <optional>
#include <string>

// What the program knows of the logbook that is shown. Whoever reads entries sets all but the folder anew.
struct LogbookState {
    std::string CurrentLogbookFile;            // the logbook text file; "" = none
    std::optional<FileStamp> CurrentFileStamp; // of that file before it was read; nothing = not known
    bool CommentsEdited = false;               // since it was read or last saved
    std::string InitZipArchiveDir;             // where an archive was saved last, with its trailing separator
};
