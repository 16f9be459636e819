// SPDX-License-Identifier: MIT
#pragma once

#include "comments/CommentJournal.h"
#include "comments/LostJournal.h"
#include "logbook/EntryTable.h"

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

// The comments of one logbook in journals whose copies of the program no longer run. The object holds the
// journals while it lives, so that no other copy offers them at the same time.
class LostComments {
  public:
    // Looks for the journals of this logbook in a folder, also from when it had fewer entries; costs nothing
    // when there is no journal. Ignores other files, and lines that a crash cut off. A journal that cannot be
    // read to its end is left for the next time.
    LostComments(const std::filesystem::path& folder, const EntryTable& entries);

    // The comments that differ from those of the logbook, by entry number; an empty text stands for a removed
    // comment. Where journals have different comments of an entry, both are in its text, the earlier one
    // first.
    const std::map<EntryNumber, std::string>& Comments() const { return comments_; }

    // Removes the journals.
    void Remove();

    // Hands the journals over, still held.
    std::vector<LostJournal> TakeJournals() { return std::move(journals_); }

  private:
    std::vector<LostJournal> journals_;
    std::map<EntryNumber, std::string> comments_;
};
