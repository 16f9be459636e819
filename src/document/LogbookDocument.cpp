// SPDX-License-Identifier: MIT
#include "document/LogbookDocument.h"

#include "base/Paths.h"
#include "base/ProgramFolder.h"
#include "comments/LogbookIdentity.h"
#include "document/ArchiveQuestions.h"
#include "document/ZipLogbook.h"
#include "filter/Filter.h"
#include "filter/FilterFile.h"
#include "filter/FiltersInForce.h"
#include "logbook/Mod_FileHandling.h"
#include "settings/Texts.h"
#include "sources/CommandLine.h"
#include "sources/LogbookSource.h"

#include <optional>
#include <span>
#include <utility>

namespace {

constexpr std::string_view ArchiveFolderSetting = "InitZipArchiveDir";

} // namespace

LogbookDocument::LogbookDocument(Surroundings surroundings, CodePage codePage,
                                 std::filesystem::path journalFolder)
    : filters_(surroundings.Filters),
      registry_(surroundings.Settings),
      tempFolder_(surroundings.Temp),
      codePage_(std::move(codePage)),
      journal_(std::move(journalFolder)),
      filtersInForce_(filters_.Load()) {
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
    if (opened) {
        OfferLostComments();
        TellNumbersOfOthers();
    }
    if (commandLine.ShowUsage && !view_->Progress().StopWanted())
        view_->User().ShowMessage(UsageText(DialogLanguage()), UserInterface::MessageIcon::None);
}

bool LogbookDocument::OpenLogbook(std::string name, const FilesInstead& instead) {
    if (logbook_.Busy)
        return false;
    const OpeningSteps steps{
        .ZipLogbook = [this] { return ZipLogbook(); },
        .ExecuteLogbook = [&](std::string& source) { return ExecuteLogbook(source, instead); }};
    if (!::OpenLogbook(name, state_, registry_, view_->User(), ProgramFolderWithSeparator(), steps))
        return false;
    view_->LogbookIsOpen(name);
    OfferLostComments();
    TellNumbersOfOthers();
    return true;
}

void LogbookDocument::OfferLostComments() {
    if (logbook_.LoadState != LoadStates::Done || journal_.Folder().empty() || view_->Progress().StopWanted())
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
    ArchiveQuestions questions(view_->User(), DialogLanguage());
    return ZipLogbook(questions);
}

bool LogbookDocument::ZipLogbook(ArchiveDecisions& decisions) {
    const std::vector<FilterDefinition> filters = filters_.Load();
    const ZipLogbookParts parts{.Entries = logbook_.Entries,
                                .Filters = filters,
                                .FileCodePage = codePage_,
                                .Temp = tempFolder_,
                                .Settings = registry_,
                                .ProgramFolder = ProgramFolderWithSeparator()};
    const ZipOutcome outcome = ::ZipLogbook(state_, parts, decisions, view_->User(), DialogLanguage(),
                                            [this](double percent) { view_->PackingProgress(percent); });
    if (outcome == ZipOutcome::Cancelled || outcome == ZipOutcome::Failed)
        return false;
    journal_.Saved();
    view_->CommentsAreSafe({});
    if (outcome == ZipOutcome::SavedWithMore)
        view_->CommentsAreChanged();
    return true;
}

ExportOutcome LogbookDocument::ExportList(const std::function<bool(double percent)>& goesOn) {
    if (logbook_.Busy)
        return ExportOutcome::Cancelled;
    const BusyLogbook busy(logbook_);
    return ::ExportList({logbook_.Entries, rows_, state_, registry_}, view_->User(), DialogLanguage(),
                        goesOn);
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
bool LogbookDocument::ExecuteLogbook(std::string& name, const FilesInstead& instead) {
    numbersBefore_.reset();
    std::error_code noFile;
    const std::optional<FileStamp> stamp = StampOf(name, noFile);
    const std::optional<LogbookSource> source =
        ResolveSource(name, tempFolder_, view_->User(), DialogLanguage());
    if (!source)
        return false;
    state_.CurrentArchive = IsArchive(name) ? name : "";
    state_.CurrentArchiveStamp = stamp;
    const bool filtersCameAlong = !instead.Filters.empty() ? ReplaceFilters(instead.Filters, instead.Filters)
                                  : !source->FilterFile.empty()
                                      ? ReplaceFilters(source->FilterFile, source->FilterName)
                                      : false;
    name = source->Name;
    state_.CurrentLogbookName = source->LogbookName;
    const bool read =
        instead.Comments.empty()
            ? ReadAndShowLogbook(source->LogbookFile, source->CommentsFile, source->CommentsName)
            : ReadAndShowLogbook(source->LogbookFile, instead.Comments, instead.Comments);
    state_.CurrentLogbookFile = read ? source->LogbookFile : "";
    // They belong to it.
    if (filtersCameAlong)
        filters_.NumbersAreMadeFor(read ? Identity() : "");
    return read;
}

const std::string& LogbookDocument::Identity() {
    if (identity_.empty())
        identity_ = LogbookIdentity(logbook_.Entries);
    return identity_;
}

void LogbookDocument::TellNumbersOfOthers() {
    if (logbook_.LoadState != LoadStates::Done || view_->Progress().StopWanted() ||
        !HideByNumber(filtersInForce_))
        return;
    const std::optional<std::string> madeFor = filters_.NumbersMadeFor();
    const std::optional<HiddenEntries> hidden = Hidden();
    if (!madeFor || !hidden)
        return;
    const EntryNumber count =
        hidden->Counts[HiddenEntries::ByNumber] + hidden->Counts[HiddenEntries::NotNumber];
    const Recognised recognised = Recognise(*madeFor, logbook_.Entries);
    if (count > 0 && recognised != Recognised::Same)
        view_->NumbersOfOthersHide({.Hidden = count, .Perhaps = recognised == Recognised::Unknown});
}

void LogbookDocument::FiltersAreChanged(const std::vector<FilterDefinition>& before,
                                        const std::vector<FilterDefinition>& after) {
    NoteNumbers(before, after);
    filtersInForce_ = WithChange(filtersInForce_, before, after);
    view_->FiltersInForceChanged();
}

// The numbers are made for this logbook from now on. Where the person takes that back, they are again for the
// logbook for which they were before.
void LogbookDocument::NoteNumbers(const std::vector<FilterDefinition>& before,
                                  const std::vector<FilterDefinition>& after) {
    if (HaveSameNumbers(before, after))
        return;
    const std::optional<std::string> madeFor = filters_.NumbersMadeFor();
    // Without a logbook nobody knows what the numbers are meant for.
    if (madeFor && *madeFor != Identity())
        numbersBefore_ = {before, *madeFor};
    const bool isAsBefore = numbersBefore_ && HaveSameNumbers(after, numbersBefore_->Filters);
    filters_.NumbersAreMadeFor(isAsBefore ? numbersBefore_->MadeFor : Identity());
}

std::optional<HiddenEntries> LogbookDocument::Hidden() const {
    if (logbook_.Busy || !filtersOfRun_)
        return std::nullopt;
    if (!hiddenByRun_)
        hiddenByRun_ = CountHidden(logbook_.Entries, *filtersOfRun_);
    HiddenEntries hidden = *hiddenByRun_;
    const auto shown = static_cast<EntryNumber>(rows_.size());
    hidden.Counts[HiddenEntries::ByNumber] += logbook_.Entries.Count() - hidden.Sum() - shown;
    return hidden;
}

// The filters of a file become the active ones. A damaged file, or one with a filter that could not be kept,
// is reported, and the active ones stay: false.
bool LogbookDocument::ReplaceFilters(const std::string& filterFile, const std::string& name) {
    FilterFileContent content = ImportFilterFile(filterFile, codePage_);
    std::string message;
    if (content.Result != FilterFileContent::Outcome::Read)
        message = FilterFileMessage(name, content, DialogLanguage());
    else if (!filters_.Replace(std::move(content.Filters), DialogLanguage()))
        message = name + ": " + std::string(Text(TextId::FilterTooLong, DialogLanguage()));
    if (!message.empty()) {
        view_->User().ShowMessage(message, UserInterface::MessageIcon::Exclamation);
        return false;
    }
    filtersInForce_ = filters_.Load();
    view_->FiltersInForceChanged();
    return true;
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
    identity_.clear();
    filtersOfRun_.reset();
    hiddenByRun_.reset();
    view_->ReadingBegins();
    CommentsFileResult comments;
    bool filled = true;
    view_->User().ShowStatus(TextId::StatusReading);
    std::string title;
    const bool read = ReadLogbook(file, logbook_, title, view_->Progress(), codePage_);
    view_->User().RestoreStatus();
    const bool unfinished = !read && logbook_.LoadState != LoadStates::Done && view_->TakesUnfinished() &&
                            !view_->Progress().StopWanted();
    const bool hasEntries = read || unfinished;
    if (read)
        view_->LogbookIsRead(title);
    if (unfinished)
        view_->LogbookIsUnfinished();
    if (hasEntries && !commentsFile.empty())
        comments = ReadComments(commentsFile);
    const bool hasComments = comments.Result == CommentsFileResult::Outcome::Read;
    if (hasEntries)
        filled = MakeRows();
    view_->ReadingEnds();
    view_->ShowCounts();
    if (!hasComments || logbook_.LoadState != LoadStates::Done)
        view_->MessageFollows();
    logbook_.Busy = false;
    // Whoever ends it wants to be told nothing more.
    if (view_->Progress().StopWanted())
        return false;
    if (!hasComments)
        view_->CommentsFailed(commentsName, comments);
    if (!filled)
        view_->FilteringFailed();
    if (logbook_.LoadState != LoadStates::Done)
        view_->ReadingFailed(logbook_.LoadState);
    return logbook_.LoadState == LoadStates::Done || (hasEntries && view_->OpensWithoutRows());
}

CommentsFileResult LogbookDocument::ReadComments(const std::string& commentsFile) {
    view_->User().ShowStatus(TextId::StatusCommenting);
    const CommentsFileResult result = CommentLogbook(commentsFile, logbook_.Entries, codePage_);
    view_->User().RestoreStatus();
    return result;
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

// Makes the rows anew from the active filters. False when that failed; the rows made until then are shown.
bool LogbookDocument::MakeRows() {
    view_->User().ShowStatus(TextId::StatusFiltering);
    const std::optional<EntryNumber> selected = view_->SelectedEntry();
    logbook_.LoadState = LoadStates::Filtering;
    LogbookRows rows;
    std::vector<FilterDefinition> filters = filters_.Load();
    const bool filled = ApplyFilters(logbook_.Entries, filters, rows,
                                     [this](double percent) { view_->FilterProgress(percent); });
    filtersOfRun_ = filters;
    hiddenByRun_.reset();
    filtersInForce_ = std::move(filters);
    view_->ChangeRows([&] { rows_ = std::move(rows); });
    view_->FiltersInForceChanged();
    if (filled) {
        logbook_.LoadState = LoadStates::Done;
        if (selected)
            if (const std::optional<std::size_t> row = RowForEntry(rows_, *selected))
                view_->SelectRow(*row);
    }
    view_->User().RestoreStatus();
    return filled;
}
