// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "base/FileStamp.h"
#include "base/TempFolder.h"
#include "filter/FilterDefinition.h"
#include "logbook/EntryTable.h"
#include "settings/Language.h"
#include "sources/ZipBuilder.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

// The program's own archive (*.qorvix): a zip archive of three members at its top level that have the
// archive's own base name, as "a.log", "a.fil" and "a.cmt" in "a.qorvix".

inline constexpr std::string_view ArchiveExtension = ".qorvix";

// A file name that was looked at.
struct SeenFile {
    std::optional<FileStamp> Stamp; // nothing = there was no file
};

struct ArchiveContent {
    std::string LogbookFile;                   // goes in byte for byte
    std::string LogbookName = {};              // what messages call that file; "" = its path
    std::optional<FileStamp> LogbookStamp;     // as the logbook file must still be; nothing = as it is now
    std::span<const FilterDefinition> Filters; // the active ones
    const EntryTable& Entries;                 // whose comments go in
    const CodePage& FileCodePage;              // of filters and comments
    std::optional<SeenFile> Replaced = {};     // as what is replaced must still be; nothing = as it is now
};

// Names the comments and filters with characters that an archive cannot hold, which become "?" in it, in
// words for the user; "" when there are none. Of each at most ten are named: entries by their numbers,
// filters by their places in the list, counted from 1.
std::string TextsThatLose(const ArchiveContent& content, Language language);

// Saves an archive: built beside its place, flushed to the disk, and only then put there, so that a failure
// leaves an archive of that name as it was. The logbook may come out of that same archive.
//
// Returns why it failed, in words for the user, "" when it did not. It fails also when the logbook file is
// gone or does not stay as it was; where another program changes the archive that is replaced meanwhile;
// where the archive would replace the logbook file or be deleted with the temporary folder; and when the
// program would not open it again, as of a logbook above 4 GiB.
//
// Costs the time of deflating the logbook; its size in memory does not matter.
std::string SaveLogbookArchive(const std::string& path, const ArchiveContent& content,
                               const TempFolder& tempFolder, Language language,
                               const PackingProgress& progress = {});
