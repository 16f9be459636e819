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

// What takes the place of an archive.
struct ArchiveSuccessor {
    const EntryTable& Entries;
    const std::set<EntryNumber>& Changed; // whose comments the person changed here: theirs may go
    std::string LogbookFile;              // that the entries were read from
    const CodePage& FileCodePage;
};

// The comments that are lost where an archive is replaced as it is.
struct ArchivedComments {
    enum class Kind : std::uint8_t {
        None,             // also where there is no archive
        OfThisLogbook,    // they can be kept
        OfAnotherLogbook, // or of another state of this one, so that the numbers mean other entries
        Unreadable,       // there may be some
    };

    Kind What = Kind::None;
    std::map<EntryNumber, std::string> Comments; // of this logbook, behind what the entries have
    std::size_t Count = 0;
    std::string Reason; // why the archive is unreadable, in the language of the user
};

// Looks into the archive that would be replaced. Its logbook is this one where the logbook file begins with
// it, byte for byte. Unpacks under the bounds of reading, and the archive's logbook only as far as it is the
// same, and where a comment is at stake at all.
ArchivedComments CommentsLostWith(const std::string& archive, const ArchiveSuccessor& successor,
                                  const TempFolder& tempFolder, Language language);

// What is at stake, in words for the user, with the number of comments or the reason; "" for None.
std::string TellArchivedComments(const ArchivedComments& lost, Language language);
