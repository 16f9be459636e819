// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "sources/CommentJournal.h"
#include "sources/LogbookState.h"
#include "sources/LostJournal.h"
#include "sources/UserInterface.h"

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

// The comments of one logbook in the journals of copies of the program that no longer run. The journals are
// held until the object ends, so that no other copy offers them at the same time.
class LostComments {
  public:
    // Looks for the journals of this logbook in a folder, also of when it had fewer entries; without any
    // journal that costs nothing. Files that are none, and lines that a crash cut off, are passed over.
    LostComments(const std::filesystem::path& folder, const EntryTable& entries);

    // The comments that differ from those of the logbook, by entry number; an empty one was removed.
    const std::map<EntryNumber, std::string>& Comments() const { return comments_; }

    // Removes the journals.
    void Remove();

    // Hands the journals over, still held.
    std::vector<LostJournal> TakeJournals() { return std::move(journals_); }

  private:
    std::vector<LostJournal> journals_;
    std::map<EntryNumber, std::string> comments_;
};

// Offers lost comments of a logbook that was just opened. True when the entries have got them; they then
// count as edited and not saved. Declined ones are removed; where the person decides neither way, they are
// offered again the next time. Nobody is asked about comments that the logbook has as they are; `journal`
// keeps these, and restored ones, until the comments of the logbook are saved.
bool OfferLostComments(EntryTable& entries, LogbookState& state, CommentJournal& journal,
                       UserInterface& user);
