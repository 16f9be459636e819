// SPDX-License-Identifier: MIT
#include "document/ArchiveQuestions.h"

#include "base/AsciiCase.h"
#include "base/Paths.h"
#include "sources/LogbookArchive.h"

#include <span>

std::optional<std::string> ArchiveQuestions::Archive(const std::string& folder, const std::string& name) {
    std::optional<std::string> path =
        user_.AskFileToSave({.Title = TextId::SaveArchiveTitle,
                             .Filters = TextId::SaveArchiveFilter,
                             .DefaultExtension = std::string(ArchiveExtension.substr(1)),
                             .Folder = folder,
                             .Name = name});
    if (!path || path->empty())
        return std::nullopt;
    // An archive is known by its extension; a dialog leaves a name with any "." in it as it was typed.
    if (LowerCase(*path).ends_with(ArchiveExtension))
        return path;
    path->append(ArchiveExtension);
    if (FileExists(*path) && !user_.Confirm(*path + Say(TextId::AskReplaceFile)))
        return std::nullopt;
    return path;
}

ArchiveDecisions::OldComments ArchiveQuestions::DecideOn(const ArchivedComments& lost, bool changedByOthers) {
    using Kind = ArchivedComments::Kind;
    static constexpr UserInterface::AnswerButton Keep{TextId::ButtonKeepComments};
    static constexpr UserInterface::AnswerButton Replace{TextId::ButtonReplaceArchive, true};
    if (lost.What == Kind::None)
        return !changedByOthers || user_.Confirm(Say(TextId::AskReplaceChangedArchive)) ? OldComments::Replace
                                                                                        : OldComments::Cancel;
    std::string question = changedByOthers ? Say(TextId::ArchiveWasChanged) + "\r\n\r\n" : "";
    question += TellArchivedComments(lost, language_) + "\r\n\r\n";
    if (lost.What == Kind::OfThisLogbook) {
        const UserInterface::AnswerButton answers[] = {Keep, Replace};
        const std::optional<std::size_t> answer =
            user_.Choose(question + Say(TextId::AskKeepComments), answers);
        return !answer ? OldComments::Cancel : *answer == 0 ? OldComments::Keep : OldComments::Replace;
    }
    question +=
        Say(lost.What == Kind::Unreadable ? TextId::AskReplaceUnreadable : TextId::AskReplaceComments);
    return user_.Choose(question, std::span(&Replace, 1)) ? OldComments::Replace : OldComments::Cancel;
}

bool ArchiveQuestions::AgreesToLosses(std::string_view losses) {
    return user_.Confirm(std::string(losses) + "\r\n\r\n" + Say(TextId::AskArchiveAll));
}

bool ArchiveQuestions::AgreesToChangedLogbook() {
    return user_.Confirm(Say(TextId::AskArchiveChangedLogbook));
}
