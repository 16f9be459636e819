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

// What happened to edited comments before their logbook is closed.
enum class CommentsOutcome : std::uint8_t {
    NoneEdited,
    Saved,
    NotSaved, // saving was cancelled, or failed and that was reported
    Dropped,  // the user does not want them saved
    Stay,     // the user wants to stay with this logbook
};

// Asks whether to save edited comments before they are lost. If so, it calls `zipLogbook`, which saves an
// archive and returns true when it did.
CommentsOutcome AskToSaveComments(const LogbookState& state, UserInterface& user,
                                  const std::function<bool()>& zipLogbook);

// Asks which logbook to open. Stores the choice and its folder; when the dialog is cancelled it stores
// nothing and returns false. The dialog begins in the folder of the last choice, the first time in
// `programFolder`.
bool ReadAndShowLogbookName(std::string& name, Registry& registry, UserInterface& user,
                            const std::string& programFolder);

struct OpeningSteps {
    std::function<bool()> ZipLogbook;                      // saves an archive; true when it did
    std::function<bool(std::string& name)> ExecuteLogbook; // opens a source, sets its state and makes the
                                                           // name a bare one; true when it did
};

// Opens a logbook in place of the one that is shown. If the name is empty, it asks for one. Nothing changes
// when the user cancels, or when saving comments fails that the user wanted to keep. True when the logbook
// has been opened; `name` is then its bare name.
bool OpenLogbook(std::string& name, const LogbookState& state, Registry& registry, UserInterface& user,
                 const std::string& programFolder, const OpeningSteps& steps);

// Offers lost comments of a logbook that was just opened. True when the entries got them; they then count as
// edited and not saved. Comments that the person declines are removed. If the person decides neither way,
// they are offered again the next time. Comments that the logbook already has are not asked about. `journal`
// keeps these, and restored ones, until the comments of the logbook are saved.
bool OfferLostComments(EntryTable& entries, LogbookState& state, CommentJournal& journal,
                       UserInterface& user);
