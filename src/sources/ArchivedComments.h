// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "base/TempFolder.h"
#include "logbook/EntryTable.h"
#include "settings/Language.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>

// What replaces an archive.
struct ArchiveSuccessor {
    const EntryTable& Entries;
    const std::set<EntryNumber>& Changed; // whose comments the person changed here: these may be lost
    std::string LogbookFile;              // the file that the entries were read from
    const CodePage& FileCodePage;
};

// The comments that are lost when the archive is replaced.
struct ArchivedComments {
    enum class Kind : std::uint8_t {
        None,             // also when there is no archive
        OfThisLogbook,    // they can be kept
        OfAnotherLogbook, // or of another state of this logbook, whose numbers mean other entries
        Unreadable,       // there may be some
    };

    Kind What = Kind::None;
    std::map<EntryNumber, std::string> Comments; // of this logbook, each behind the entry's own comment
    std::size_t Count = 0;
    std::string Reason; // why the archive is unreadable, in the language of the user
};

// Reads the archive that would be replaced. Its logbook is this one if the logbook file begins with it, byte
// for byte. Unpacks under the bounds of reading. Unpacks the archive's logbook only if a comment is at stake,
// and only as far as it is the same.
ArchivedComments CommentsLostWith(const std::string& archive, const ArchiveSuccessor& successor,
                                  const TempFolder& tempFolder, Language language);

// Tells the user what would be lost, with the number of comments or the reason; "" for None.
std::string TellArchivedComments(const ArchivedComments& lost, Language language);
