// SPDX-License-Identifier: MIT
#pragma once

#include "document/ArchiveDecisions.h"
#include "settings/Language.h"
#include "settings/UserInterface.h"

// Asks a person for the decisions.
class ArchiveQuestions : public ArchiveDecisions {
  public:
    ArchiveQuestions(UserInterface& user, Language language) : user_(user), language_(language) {}

    // A name without the archive's extension gets it. If a file of the longer name exists, which the dialog
    // did not know of, the person is asked before it is replaced.
    std::optional<std::string> Archive(const std::string& folder, const std::string& name) override;
    OldComments DecideOn(const ArchivedComments& lost, bool changedByOthers) override;
    bool AgreesToLosses(std::string_view losses) override;
    bool AgreesToChangedLogbook() override;

  private:
    std::string Say(TextId id) const { return std::string(Text(id, language_)); }

    UserInterface& user_;
    Language language_;
};
