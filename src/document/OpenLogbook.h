// SPDX-License-Identifier: MIT
#pragma once

#include "comments/CommentJournal.h"
#include "document/LogbookState.h"
#include "logbook/EntryTable.h"
#include "settings/Registry.h"
#include "settings/UserInterface.h"

#include <cstdint>
#include <functional>
#include <string>

// What became of edited comments before the logbook that they belong to goes.
enum class CommentsOutcome : std::uint8_t {
    NoneEdited,
    Saved,
    NotSaved, // saving was cancelled or failed, which the user knows
    Dropped,  // the user does not want them saved
    Stay,     // the user wants to stay with this logbook
};

// Asks whether edited comments are to be saved, before they are lost, and has them saved. `zipLogbook` saves
// an archive; true when it did.
CommentsOutcome AskToSaveComments(const LogbookState& state, UserInterface& user,
                                  const std::function<bool()>& zipLogbook);

// Asks for the logbook to open. The choice and its folder are stored; a cancelled dialog stores nothing and
// gives false. The dialog begins in the folder of the last choice, the first time in `programFolder`.
bool ReadAndShowLogbookName(std::string& name, Registry& registry, UserInterface& user,
                            const std::string& programFolder);

struct OpeningSteps {
    std::function<bool()> ZipLogbook;                      // saves an archive; true when it did
    std::function<bool(std::string& name)> ExecuteLogbook; // opens a source and gives its bare name; true
                                                           // when it did. Sets the state of what it opened
};

// Opens a logbook in place of the one that is shown; an empty name is asked for. Nothing changes where the
// user cancels, or wanted comments saved that could not be. True when the logbook has been opened; `name` is
// then its bare name.
bool OpenLogbook(std::string& name, const LogbookState& state, Registry& registry, UserInterface& user,
                 const std::string& programFolder, const OpeningSteps& steps);

// Offers lost comments of a logbook that was just opened. True when the entries have got them; they then
// count as edited and not saved. Declined ones are removed; where the person decides neither way, they are
// offered again the next time. Nobody is asked about comments that the logbook has as they are; `journal`
// keeps these, and restored ones, until the comments of the logbook are saved.
bool OfferLostComments(EntryTable& entries, LogbookState& state, CommentJournal& journal,
                       UserInterface& user);
