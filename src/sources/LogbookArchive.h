// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"
#include "logbook/CodePage.h"
#include "logbook/EntryTable.h"
#include "sources/UserInterface.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

class Registry;

// The program's own archive (*.qorvix): a zip archive with three members, which have the archive's base name:
// the logbook (.log), the active filters (.fil) and the comments (.cmt).
struct ArchiveContents {
    std::string BaseName;
    std::string LogbookFile; // packed as it stands on the disk
    std::string Filters;     // bytes of a filter file
    std::string Comments;    // bytes of a comments file
};

// Writes the archive beside its place and puts it there when it is whole and flushed. "" when that is done,
// otherwise why not; an old archive is then as it was. The logbook may come from the archive that is
// replaced: its unpacked file is read, not the archive. Its bytes pass through, whatever their number.
std::string WriteArchive(const std::string& path, const ArchiveContents& contents,
                         const std::function<void(double percent)>& progress);

// What is saved, and where the person is asked to.
struct ZipRequest {
    std::string LogbookFile; // "" = no logbook is shown
    const EntryTable& Entries;
    std::span<const FilterDefinition> Filters;
    const CodePage& Encoding;
    std::string& InitZipArchiveDir; // where the dialog begins; afterwards the folder that was chosen
};

// Saves the logbook with its comments and the active filters as an archive of the person's choice, and keeps
// the folder in the settings. True when the archive was built. False when no logbook is shown, the person
// cancelled, or it could not be built, which has then been told. Characters that the files cannot hold are
// told before anything is written.
bool ZipLogbook(const ZipRequest& request, Registry& registry, UserInterface& user, Language language);

// What would be lost when these comments and filters are written, as a question; "" when nothing would.
std::string QuestionAboutLosses(const std::vector<EntryNumber>& entries,
                                const std::vector<std::size_t>& filters, Language language);
