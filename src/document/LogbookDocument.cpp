// SPDX-License-Identifier: MIT
#include "document/LogbookDocument.h"

#include "base/Paths.h"
#include "base/ProgramFolder.h"
#include "comments/Comments.h"
#include "document/ZipLogbook.h"
#include "filter/Filter.h"
#include "filter/FilterFile.h"
#include "filter/FilterStorage.h"
#include "logbook/Mod_FileHandling.h"
#include "sources/CommandLine.h"
#include "sources/LogbookSource.h"

#include <optional>
#include <span>
#include <utility>

namespace {

constexpr std::string_view ArchiveFolderSetting = "InitZipArchiveDir";

std::string ProgramFolderWithSeparator() { return ProgramFolder() + '/'; }

} // namespace

LogbookDocument::LogbookDocument(Registry& registry, const TempFolder& tempFolder, CodePage codePage,
                                 std::filesystem::path journalFolder)
    : registry_(registry),
      tempFolder_(tempFolder),
      codePage_(std::move(codePage)),
      journal_(std::move(journalFolder)) {
    state_.InitZipArchiveDir =
        registry_.ReadLogbookSettingString(ArchiveFolderSetting, ProgramFolderWithSeparator());
}

void LogbookDocument::RunCommandLine(const std::vector<std::string>& arguments) {
    const CommandLine commandLine = ParseArguments(arguments, FileExists);
    bool opened = false;
    for (const std::string& source : commandLine.Sources) {
        std::string name = source;
        if (!view_->Progress().StopWanted() && ExecuteLogbook(name)) {
            view_->LogbookIsOpen(name);
            opened = true;
        }
    }
    // For the logbook that stays.
    if (opened)
        OfferLostComments();
    if (commandLine.ShowUsage && !view_->Progress().StopWanted())
        view_->User().ShowMessage(UsageText(DialogLanguage()), UserInterface::MessageIcon::None);
}

bool LogbookDocument::OpenLogbook(std::string name) {
    if (logbook_.Busy)
        return false;
    const OpeningSteps steps{
        .ZipLogbook = [this] { return ZipLogbook(); },
        .ExecuteLogbook = [this](std::string& source) { return ExecuteLogbook(source); }};
    if (!::OpenLogbook(name, state_, registry_, view_->User(), ProgramFolderWithSeparator(), steps))
        return false;
    view_->LogbookIsOpen(name);
    OfferLostComments();
    return true;
}

void LogbookDocument::OfferLostComments() {
    if (logbook_.LoadState != LoadStates::Done || view_->Progress().StopWanted())
        return;
    if (::OfferLostComments(logbook_.Entries, state_, journal_, view_->User()))
        view_->CommentsAreChanged();
}

CommentsOutcome LogbookDocument::AskToSaveComments() {
    return ::AskToSaveComments(state_, view_->User(), [this] { return ZipLogbook(); });
}

bool LogbookDocument::Close() {
    const CommentsOutcome outcome = AskToSaveComments();
    if (outcome == CommentsOutcome::Stay)
        return false;
    if (outcome != CommentsOutcome::NotSaved)
        journal_.Dropped();
    return true;
}

void LogbookDocument::StoreFolders() {
    registry_.WriteLogbookSetting(ArchiveFolderSetting, state_.InitZipArchiveDir, SettingType::Text);
}

void LogbookDocument::Refresh() {
    // The comments go with this, so that they are asked about as they are before another logbook.
    const CommentsOutcome outcome = AskToSaveComments();
    if (outcome != CommentsOutcome::NotSaved && outcome != CommentsOutcome::Stay)
        ReadAndShowLogbook(state_.CurrentLogbookFile, "");
}

bool LogbookDocument::ZipLogbook() {
    const FilterLists lists = LoadFilters(registry_, DialogLanguage());
    const ZipLogbookParts parts{.Entries = logbook_.Entries,
                                .Filters = lists.Filters,
                                .FileCodePage = codePage_,
                                .Temp = tempFolder_,
                                .Settings = registry_,
                                .ProgramFolder = ProgramFolderWithSeparator()};
    const ZipOutcome outcome = ::ZipLogbook(state_, parts, view_->User(), DialogLanguage(),
                                            [this](double percent) { view_->PackingProgress(percent); });
    if (outcome == ZipOutcome::Cancelled || outcome == ZipOutcome::Failed)
        return false;
    journal_.Saved();
    view_->CommentsAreSafe({});
    if (outcome == ZipOutcome::SavedWithMore)
        view_->CommentsAreChanged();
    return true;
}

void LogbookDocument::ChangeComment(EntryNumber entry, std::string_view comment) {
    const bool differs = logbook_.Entries.Comment(entry) != comment;
    logbook_.Entries.SetComment(entry, comment);
    state_.CommentsEdited = true;
    if (differs)
        state_.ChangedComments.insert(entry);
    view_->CommentsAreSafe(journal_.Note(logbook_.Entries, std::span(&entry, 1)));
}

// Opens one source; the name becomes that of the logbook.
bool LogbookDocument::ExecuteLogbook(std::string& name) {
    std::error_code noFile;
    const std::optional<FileStamp> stamp = StampOf(name, noFile);
    const std::optional<LogbookSource> source =
        ResolveSource(name, tempFolder_, view_->User(), DialogLanguage());
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
// take the whole list with it, is reported, and the active ones stay.
void LogbookDocument::ReplaceFilters(const std::string& filterFile, const std::string& name) {
    const auto report = [&](const std::string& message) {
        view_->User().ShowMessage(message, UserInterface::MessageIcon::Exclamation);
    };
    FilterFileContent content = ImportFilterFile(filterFile, codePage_);
    if (content.Result != FilterFileContent::Outcome::Read)
        return report(FilterFileMessage(name, content, DialogLanguage()));
    for (const FilterDefinition& filter : content.Filters)
        if (ObstacleOf(filter) != StorageObstacle::None)
            return report(name + ": " + std::string(Text(TextId::FilterTooLong, DialogLanguage())));
    FilterLists lists = LoadFilters(registry_, DialogLanguage());
    lists.Filters = std::move(content.Filters);
    SaveFilters(registry_, lists, "");
}

bool LogbookDocument::ReadAndShowLogbook(const std::string& file, const std::string& commentsFile,
                                         const std::string& commentsName) {
    if (logbook_.Busy)
        return false;
    logbook_.Busy = true;
    state_.CommentsEdited = false;
    state_.ChangedComments.clear();
    journal_.Dropped();
    view_->CommentsAreSafe({});
    std::error_code noFile;
    state_.CurrentFileStamp = StampOf(file, noFile);
    view_->ChangeRows([this] { rows_.clear(); });
    view_->ReadingBegins();
    std::string aboutComments;
    bool filled = true;
    view_->User().ShowStatus(TextId::StatusReading);
    std::string title;
    const bool read = ReadLogbook(file, logbook_, title, view_->Progress(), codePage_);
    view_->User().RestoreStatus();
    if (read)
        view_->LogbookIsRead(title);
    if (read && !commentsFile.empty())
        aboutComments = ReadComments(commentsFile, commentsName);
    if (read)
        filled = MakeRows();
    view_->ReadingEnds();
    view_->ShowCounts();
    if (!aboutComments.empty() || logbook_.LoadState != LoadStates::Done)
        view_->MessageFollows();
    logbook_.Busy = false;
    // Whoever ends it wants to be told nothing more.
    if (view_->Progress().StopWanted())
        return false;
    if (!aboutComments.empty())
        view_->User().ShowMessage(aboutComments, UserInterface::MessageIcon::None);
    if (!filled)
        view_->FilteringFailed();
    if (logbook_.LoadState != LoadStates::Done)
        ShowLoadState();
    return logbook_.LoadState == LoadStates::Done;
}

// The message for a comments file that could not be read; "" when it was.
std::string LogbookDocument::ReadComments(const std::string& commentsFile, const std::string& name) {
    view_->User().ShowStatus(TextId::StatusCommenting);
    const CommentsFileResult result = CommentLogbook(commentsFile, logbook_.Entries, codePage_);
    view_->User().RestoreStatus();
    return result.Result == CommentsFileResult::Outcome::Read
               ? ""
               : CommentsFileMessage(name, result, DialogLanguage());
}

void LogbookDocument::ApplyFilter() {
    if (logbook_.Busy)
        return;
    view_->FilteringBegins();
    const bool filled = MakeRows();
    view_->FilteringEnds();
    if (!filled)
        view_->FilteringFailed();
    view_->ShowCounts();
}

// Makes the rows anew from the stored filters. False when that failed; the rows made until then are shown.
bool LogbookDocument::MakeRows() {
    view_->User().ShowStatus(TextId::StatusFiltering);
    const std::optional<EntryNumber> selected = view_->SelectedEntry();
    logbook_.LoadState = LoadStates::Filtering;
    LogbookRows rows;
    const FilterLists lists = LoadFilters(registry_, DialogLanguage());
    const bool filled = ApplyFilters(logbook_.Entries, lists.Filters, rows,
                                     [this](double percent) { view_->FilterProgress(percent); });
    view_->ChangeRows([&] { rows_ = std::move(rows); });
    if (filled) {
        logbook_.LoadState = LoadStates::Done;
        if (selected)
            if (const std::optional<std::size_t> row = RowForEntry(rows_, *selected))
                view_->SelectRow(*row);
    }
    view_->User().RestoreStatus();
    return filled;
}

void LogbookDocument::ShowLoadState() {
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
        if (row.Code == logbook_.LoadState)
            view_->User().ShowMessage(Text(row.Message, DialogLanguage()), row.Icon);
}
