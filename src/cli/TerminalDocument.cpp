// SPDX-License-Identifier: MIT
#include "cli/TerminalDocument.h"

#include "cli/ExitStatus.h"
#include "settings/Texts.h"

#include <utility>

TerminalDocument::TerminalDocument(Options options)
    : language_(options.MessageLanguage),
      partial_(options.Partial),
      tempFolder_(std::in_place, TempFolder::SystemFolder(), options.Files),
      filters_(std::move(options.Filters)),
      user_(options.ArchiveFilters),
      progress_(user_, options.Partial),
      document_({.Filters = filters_, .Settings = registry_, .Temp = *tempFolder_}, CodePage::OfUser(), {}) {
    document_.ShowIn(*this);
}

bool TerminalDocument::Open(const std::string& file, const FilesInstead& instead) {
    file_ = file;
    document_.OpenLogbook(file, instead);
    if (user_.MessageShown())
        return false;
    if (isRead_)
        return !StopRequest::IsMade();
    const bool reading = document_.Book().LoadState == LoadStates::Reading;
    Fail(std::string(Text(reading ? TextId::ReadFailed : TextId::OpenFailed, language_)) + ": " + file);
    return false;
}

int TerminalDocument::FailForNothingRead() const {
    return Fail(file_ + ": " + std::string(Text(TextId::NothingRead, language_)));
}

int TerminalDocument::StatusOf(int printed) const {
    if (!isUnfinished_ || printed != ExitStatus::Done)
        return printed;
    TellMessage(std::string(Text(TextId::ReadEndedEarly, language_)) +
                std::to_string(document_.Book().Entries.Count()));
    return ExitStatus::Unfinished;
}

void TerminalDocument::LogbookIsUnfinished() {
    isRead_ = true;
    isUnfinished_ = true;
}

void TerminalDocument::CommentsFailed(const std::string& name, const CommentsFileResult& result) {
    std::string message = CommentsFileMessage(name, result, language_);
    if (result.Result == CommentsFileResult::Outcome::NoHeader)
        message.insert(0, name + ": ");
    Fail(message);
    hasComments_ = false;
}
