// SPDX-License-Identifier: MIT
// Opening, reading, filtering and saving the logbook; the window around it is in frmMain.cpp.
#include "app/MainStatusBar.h"
#include "app/MainToolBar.h"
#include "app/WaitPointer.h"
#include "app/frmMain.h"
#include "base/Paths.h"
#include "base/ProgramFolder.h"
#include "comments/Comments.h"
#include "comments/LostComments.h"
#include "filter/Filter.h"
#include "filter/FilterFile.h"
#include "filter/FilterStorage.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "list/QtText.h"
#include "logbook/Mod_FileHandling.h"
#include "sources/CommandLine.h"
#include "sources/LogbookSource.h"
#include "sources/ZipLogbook.h"

#include <QPlainTextEdit>

#include <optional>

void frmMain::RunCommandLine(const std::vector<std::string>& arguments) {
    const CommandLine commandLine = ParseArguments(arguments, FileExists);
    bool opened = false;
    for (const std::string& source : commandLine.Sources) {
        std::string name = source;
        if (!progress_.StopWanted() && ExecuteLogbook(name)) {
            AddNameToTitle(name);
            opened = true;
        }
    }
    // For the logbook that stays.
    if (opened)
        OfferLostComments();
    if (commandLine.ShowUsage && !progress_.StopWanted())
        user_.ShowMessage(UsageText(language_), UserInterface::MessageIcon::None);
}

bool frmMain::OpenLogbook(std::string name) {
    if (logbook_.Busy)
        return false;
    const OpeningSteps steps{
        .ZipLogbook = [this] { return ZipLogbook(); },
        .ExecuteLogbook = [this](std::string& source) { return ExecuteLogbook(source); }};
    if (!::OpenLogbook(name, state_, registry_, user_, ProgramFolder() + '/', steps))
        return false;
    AddNameToTitle(name);
    OfferLostComments();
    return true;
}

void frmMain::OfferLostComments() {
    if (logbook_.LoadState != LoadStates::Done || progress_.StopWanted())
        return;
    if (::OfferLostComments(logbook_.Entries, state_, journal_, user_))
        model_->ShowComments();
}

void frmMain::NoteComment(EntryNumber number) {
    ShowNotNoted(journal_.Note(logbook_.Entries, std::span(&number, 1)));
}

CommentsOutcome frmMain::AskToSaveComments() {
    return ::AskToSaveComments(state_, user_, [this] { return ZipLogbook(); });
}

bool frmMain::ZipLogbook() {
    const FilterLists lists = LoadFilters(registry_, language_);
    const ZipLogbookParts parts{.Entries = logbook_.Entries,
                                .Filters = lists.Filters,
                                .FileCodePage = codePage_,
                                .Temp = tempFolder_,
                                .Settings = registry_,
                                .ProgramFolder = ProgramFolder() + '/'};
    // The bar is gone before a failure is told.
    const auto showProgress = [this](double percent) {
        if (percent == 0)
            sbStatusBar->HideProgressBar();
        else
            sbStatusBar->ShowProgressBar();
        progress_.PaintValue(percent);
    };
    const ZipOutcome outcome = ::ZipLogbook(state_, parts, user_, language_, showProgress);
    if (outcome == ZipOutcome::Cancelled || outcome == ZipOutcome::Failed)
        return false;
    journal_.Saved();
    ShowNotNoted({});
    if (outcome == ZipOutcome::SavedWithMore) {
        model_->ShowComments();
        ShowSelectedContent();
    }
    return true;
}

// Opens one source; the name becomes that of the logbook.
bool frmMain::ExecuteLogbook(std::string& name) {
    std::error_code noFile;
    const std::optional<FileStamp> stamp = StampOf(name, noFile);
    const std::optional<LogbookSource> source = ResolveSource(name, tempFolder_, user_, language_);
    if (!source)
        return false;
    state_.CurrentArchive = IsArchive(name) ? name : "";
    state_.CurrentArchiveStamp = stamp;
    if (!source->FilterFile.empty())
        ReplaceFilters(source->FilterFile, source->FilterName);
    name = source->Name;
    state_.CurrentLogbookName = source->LogbookName;
    const bool read = ReadAndShowLogbook(source->LogbookFile, source->CommentsFile, source->CommentsName);
    state_.CurrentLogbookFile = read ? source->LogbookFile : "";
    return read;
}

// The filters of an archive become the active ones. A damaged filter file, or one with a filter that would
// take the whole list with it, is told, and the active ones stay.
void frmMain::ReplaceFilters(const std::string& filterFile, const std::string& name) {
    FilterFileContent content = ImportFilterFile(filterFile, codePage_);
    if (content.Result != FilterFileContent::Outcome::Read) {
        user_.ShowMessage(FilterFileMessage(name, content, language_),
                          UserInterface::MessageIcon::Exclamation);
        return;
    }
    for (const FilterDefinition& filter : content.Filters)
        if (ObstacleOf(filter) != StorageObstacle::None) {
            user_.ShowMessage(name + ": " + std::string(Text(TextId::FilterTooLong, language_)),
                              UserInterface::MessageIcon::Exclamation);
            return;
        }
    FilterLists lists = LoadFilters(registry_, language_);
    lists.Filters = std::move(content.Filters);
    SaveFilters(registry_, lists, "");
}

void frmMain::Refresh() {
    tbToolBar->repaint();
    // The comments go with this, so that they are asked about as they are before another logbook.
    const CommentsOutcome outcome = AskToSaveComments();
    if (outcome != CommentsOutcome::NotSaved && outcome != CommentsOutcome::Stay)
        ReadAndShowLogbook(state_.CurrentLogbookFile, "");
}

bool frmMain::ReadAndShowLogbook(const std::string& file, const std::string& commentsFile,
                                 const std::string& commentsName) {
    if (logbook_.Busy)
        return false;
    logbook_.Busy = true;
    state_.CommentsEdited = false;
    state_.ChangedComments.clear();
    journal_.Dropped();
    ShowNotNoted({});
    std::error_code noFile;
    state_.CurrentFileStamp = StampOf(file, noFile);
    model_->ClearRows();
    lvLogbook->ShowSortIndicator();
    txContent->clear();
    sbStatusBar->ClearCounts();
    sbStatusBar->ShowProgressBar();
    std::string aboutComments;
    bool filled = true;
    {
        const WaitPointer wait;
        user_.ShowStatus(TextId::StatusReading);
        std::string title;
        const bool read = ReadLogbook(file, logbook_, title, progress_, codePage_);
        user_.RestoreStatus();
        if (read)
            sbStatusBar->ShowDescription(ToQString(title));
        if (read && !commentsFile.empty())
            aboutComments = ReadComments(commentsFile, commentsName);
        if (read)
            filled = FillList();
    }
    sbStatusBar->HideProgressBar();
    ShowLogbookStatus();
    // A window behind a message cannot be closed, and what has closed it until now would be lost.
    if (!aboutComments.empty() || logbook_.LoadState != LoadStates::Done)
        progress_.TakePendingEvents();
    logbook_.Busy = false;
    if (progress_.StopWanted()) {
        // The window was closed while it was reading. Whoever closes it wants to be told nothing more.
        close();
        return false;
    }
    if (!aboutComments.empty())
        user_.ShowMessage(aboutComments, UserInterface::MessageIcon::None);
    if (!filled)
        ShowFilterFailed();
    if (logbook_.LoadState == LoadStates::Done)
        return true;
    ShowLogbookError(logbook_.LoadState);
    return false;
}

// The message for a comments file that could not be read; "" when it was.
std::string frmMain::ReadComments(const std::string& commentsFile, const std::string& name) {
    user_.ShowStatus(TextId::StatusCommenting);
    const CommentsFileResult result = CommentLogbook(commentsFile, logbook_.Entries, codePage_);
    user_.RestoreStatus();
    return result.Result == CommentsFileResult::Outcome::Read ? ""
                                                              : CommentsFileMessage(name, result, language_);
}

void frmMain::ApplyFilter() {
    if (logbook_.Busy)
        return;
    sbStatusBar->ShowProgressBar();
    bool filled = false;
    {
        const WaitPointer wait;
        filled = FillList();
    }
    sbStatusBar->HideProgressBar();
    if (!filled)
        ShowFilterFailed();
    ShowLogbookStatus();
}

// Makes the rows anew from the stored filters. False when that failed; the rows made until then are shown.
bool frmMain::FillList() {
    user_.ShowStatus(TextId::StatusFiltering);
    const std::optional<int> selected = lvLogbook->SelectedRow();
    const EntryNumber before =
        selected ? model_->Rows()[static_cast<std::size_t>(*selected)].Entry : MostEntries;

    logbook_.LoadState = LoadStates::Filtering;
    LogbookRows rows;
    const FilterLists lists = LoadFilters(registry_, language_);
    const bool filled = ApplyFilters(logbook_.Entries, lists.Filters, rows,
                                     [this](double percent) { progress_.PaintValue(percent); });
    model_->SetRows(std::move(rows));
    lvLogbook->ShowSortIndicator();
    if (filled) {
        logbook_.LoadState = LoadStates::Done;
        if (selected)
            if (const std::optional<std::size_t> row = RowForEntry(model_->Rows(), before))
                lvLogbook->SelectAndShow(static_cast<int>(*row));
    }
    user_.RestoreStatus();
    return filled;
}

void frmMain::ShowFilterFailed() {
    user_.ShowMessage(Text(TextId::FilterFailed, language_), QtText(TextId::FilterError, language_),
                      UserInterface::MessageIcon::Exclamation);
}

void frmMain::ShowLogbookStatus() {
    sbStatusBar->ShowLogbookStatus(model_->rowCount(), logbook_.EntryCount, language_);
}

void frmMain::ShowLogbookError(std::int16_t code) {
    struct Row {
        std::int16_t Code;
        TextId Message;
        UserInterface::MessageIcon Icon;
    };
    static constexpr Row Messages[] = {
        {LoadStates::Corrupt, TextId::LogbookCorrupt, UserInterface::MessageIcon::Exclamation},
        {LoadStates::Opening, TextId::OpenFailed, UserInterface::MessageIcon::None},
        {LoadStates::Reading, TextId::ReadFailed, UserInterface::MessageIcon::None},
        {LoadStates::Filtering, TextId::FilterError, UserInterface::MessageIcon::None},
    };
    for (const Row& row : Messages)
        if (row.Code == code)
            user_.ShowMessage(Text(row.Message, language_), row.Icon);
}

void frmMain::AddNameToTitle(const std::string& name) {
    setWindowTitle(ToQString(name) + " - " + BaseCaption);
}
