// SPDX-License-Identifier: MIT
#include "document/OpenLogbook.h"

#include "base/Paths.h"
#include "comments/LostComments.h"

namespace {
constexpr std::string_view FolderSetting = "InitLogbookDir";
constexpr std::string_view FileSetting = "InitLogbookFile";
} // namespace

CommentsOutcome AskToSaveComments(const LogbookState& state, UserInterface& user,
                                  const std::function<bool()>& zipLogbook) {
    if (!state.CommentsEdited)
        return CommentsOutcome::NoneEdited;
    switch (user.Ask(TextId::AskSaveComments)) {
    case UserInterface::Answer::Yes:
        return zipLogbook() ? CommentsOutcome::Saved : CommentsOutcome::NotSaved;
    case UserInterface::Answer::No:
        return CommentsOutcome::Dropped;
    case UserInterface::Answer::Cancel:
        break;
    }
    return CommentsOutcome::Stay;
}

bool ReadAndShowLogbookName(std::string& name, Registry& registry, UserInterface& user,
                            const std::string& programFolder) {
    const std::optional<std::string> choice =
        user.AskFileToOpen({.Title = TextId::OpenTitle,
                            .Filters = TextId::OpenFilter,
                            .DefaultExtension = "",
                            .Folder = registry.ReadLogbookSettingString(FolderSetting, programFolder),
                            .Name = ""});
    if (!choice || choice->empty())
        return false;
    name = *choice;
    std::string folder;
    std::string fileName;
    SplitPath(name, folder, fileName);
    const Registry::Transaction transaction(registry);
    registry.WriteLogbookSetting(FolderSetting, folder, SettingType::Text);
    registry.WriteLogbookSetting(FileSetting, name, SettingType::Text);
    return true;
}

bool OpenLogbook(std::string& name, const LogbookState& state, Registry& registry, UserInterface& user,
                 const std::string& programFolder, const OpeningSteps& steps) {
    const CommentsOutcome comments = AskToSaveComments(state, user, steps.ZipLogbook);
    if (comments == CommentsOutcome::NotSaved || comments == CommentsOutcome::Stay)
        return false;
    if (name.empty() && !ReadAndShowLogbookName(name, registry, user, programFolder))
        return false;
    return steps.ExecuteLogbook(name);
}

bool OfferLostComments(EntryTable& entries, LogbookState& state, CommentJournal& journal,
                       UserInterface& user) {
    LostComments lost(journal.Folder(), entries);
    if (lost.Comments().empty()) {
        journal.Keep(lost.TakeJournals(), {});
        return false;
    }
    switch (user.Ask(TextId::AskRestoreComments)) {
    case UserInterface::Answer::Yes: {
        std::vector<EntryNumber> restored;
        for (const auto& [number, comment] : lost.Comments()) {
            entries.SetComment(number, comment);
            restored.push_back(number);
        }
        // Before the journal holds them: comments that do not count as edited go with it unasked.
        state.CommentsEdited = true;
        state.ChangedComments.insert(restored.begin(), restored.end());
        journal.Keep(lost.TakeJournals(), restored);
        return true;
    }
    case UserInterface::Answer::No:
        lost.Remove();
        break;
    case UserInterface::Answer::Cancel:
        break;
    }
    return false;
}
