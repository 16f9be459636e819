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

// The program's own archive (*.qorvix): a zip archive with three members at its top level, which have the
// archive's base name: "a.log", "a.fil" and "a.cmt" in "a.qorvix".

inline constexpr std::string_view ArchiveExtension = ".qorvix";

// The state of a file name when it was last checked.
struct SeenFile {
    std::optional<FileStamp> Stamp; // nothing = there was no file
};

struct ArchiveContent {
    std::string LogbookFile;                   // stored byte for byte
    std::string LogbookName = {};              // its name in messages; "" = its path
    std::optional<FileStamp> LogbookStamp;     // the logbook file must still have it; nothing = its present
                                               // one
    std::span<const FilterDefinition> Filters; // the active ones
    const EntryTable& Entries;                 // whose comments are stored
    const CodePage& FileCodePage;              // of filters and comments
    std::optional<SeenFile> Replaced = {};     // the replaced file must still be so; nothing = its present
                                               // state
};

// Tells the user which comments and filters have characters that become "?" in an archive, because it cannot
// hold them; "" when there are none. Names at most ten of each: entries by their numbers, filters by their
// places in the list, counted from 1.
std::string TextsThatLose(const ArchiveContent& content, Language language);

// Saves an archive: builds it beside its place, flushes it to the disk, and only then moves it there, so that
// a failure leaves an old archive as it was. The logbook may come from that same archive.
//
// Returns why it failed, in words for the user; "" on success. It also fails when the logbook file is gone or
// changes; when another program changes the old archive meanwhile; when the archive would replace the logbook
// file or be deleted with the temporary folder; and when the program could not open it again, as with a
// logbook above 4 GiB.
//
// Costs the time of deflating the logbook. Memory does not grow with the logbook.
std::string SaveLogbookArchive(const std::string& path, const ArchiveContent& content,
                               const TempFolder& tempFolder, Language language,
                               const PackingProgress& progress = {});
