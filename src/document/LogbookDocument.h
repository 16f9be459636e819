// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "base/TempFolder.h"
#include "comments/CommentJournal.h"
#include "comments/Comments.h"
#include "document/ActiveFilters.h"
#include "document/ArchiveDecisions.h"
#include "document/DocumentView.h"
#include "document/ExportList.h"
#include "document/LogbookState.h"
#include "document/OpenLogbook.h"
#include "filter/HiddenEntries.h"
#include "filter/LogbookRow.h"
#include "logbook/Logbook.h"
#include "settings/Registry.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// Files to use instead of those that a source carries; "" = those of the source.
struct FilesInstead {
    std::string Comments = {};
    std::string Filters = {};
};

// One logbook as a person works with it: its entries, the rows that the filters let through, its comments,
// its source, and the journal that saves unsaved comments from a crash.
//
// While Book().Busy is set, it carries out no other order.
class LogbookDocument {
  public:
    // What a document works with; all of it must outlive the document.
    struct Surroundings {
        ActiveFilters& Filters;
        Registry& Settings; // which hold the folders of the last logbook and the last archive
        const TempFolder& Temp;
    };

    // Notes comments in `journalFolder` until they are saved. If that is "", it notes none, and offers no
    // lost ones. `codePage` is that of texts which do not name their own.
    LogbookDocument(Surroundings surroundings, CodePage codePage,
                    std::filesystem::path journalFolder = StateFolder());

    // Shows the document in this view from now on. Must be called before the first order.
    void ShowIn(DocumentView& view) { view_ = &view; }

    const Logbook& Book() const { return logbook_; }
    Logbook& Book() { return logbook_; }
    const EntryTable& Entries() const { return logbook_.Entries; }
    LogbookRows& Rows() { return rows_; }
    const LogbookRows& Rows() const { return rows_; }
    const CodePage& FileCodePage() const { return codePage_; }
    const TempFolder& Temp() const { return tempFolder_; }

    // Opens the logbooks that a command line names one after the other; each replaces the one before. Shows
    // the usage if the command line asks for it.
    void RunCommandLine(const std::vector<std::string>& arguments);

    // Opens one source: a logbook file, a service archive or an own archive; with "" it asks the person
    // which. Before edited comments are dropped, it asks about them. False when the person cancelled or the
    // read was left unfinished.
    bool OpenLogbook(std::string name, const FilesInstead& instead = {});

    // Reads the logbook file again, without the comments. Asks about edited ones first.
    void Refresh();

    // Reads a logbook file and its comments file ("" = none), and makes the rows. Messages call the comments
    // file by `commentsName`. False when a run-time error, which is then reported to the view, or the person
    // ended it. A file that cannot be opened gives no rows.
    bool ReadAndShowLogbook(const std::string& file, const std::string& commentsFile,
                            const std::string& commentsName = {});

    // Makes the rows anew with the active filters, in entry order. Selects the row of the entry that was
    // selected or, if that is gone, the next one.
    void ApplyFilter();

    // The filters that decide what is shown and highlighted: those of the last filter run, and changes that
    // were made here since. What others change in the stored ones counts only from the next run on. Before
    // the first run, those that were stored when the document was made.
    const std::vector<FilterDefinition>& FiltersInForce() const { return filtersInForce_; }

    // Must be told when the person has changed the stored filters here; Replace and a filter run are known.
    void FiltersAreChanged(const std::vector<FilterDefinition>& before,
                           const std::vector<FilterDefinition>& after);

    // Why entries are not among the rows; the counts add up to all entries less the rows. Rows that were
    // taken out since the filter run count as removed by number. Nothing while a logbook is read, or before
    // its filter run. The first call after a run passes through all entries, which takes less time than the
    // run.
    std::optional<HiddenEntries> Hidden() const;

    // Sets the comment (UTF-8) of an entry, "" removes it, and notes it.
    void ChangeComment(EntryNumber entry, std::string_view comment);

    // Saves the logbook with its comments and the active filters as an archive; true when it did. The first
    // one asks the person for the decisions. See ZipLogbook.h.
    bool ZipLogbook();
    bool ZipLogbook(ArchiveDecisions& decisions);

    // Writes the rows as they stand to a file that it asks for. Book().Busy is set meanwhile, so nothing
    // changes the rows while `goesOn` lets events run. See ExportList.h.
    ExportOutcome ExportList(const std::function<bool(double percent)>& goesOn);

    // Asks about edited comments before the document is closed; false when the person wants to stay. If
    // saving them failed, the document may be closed all the same: they stay in the journal.
    bool Close();

    // Stores in the settings what the document knows of folders.
    void StoreFolders();

  private:
    bool ExecuteLogbook(std::string& name, const FilesInstead& instead = {});
    bool ReplaceFilters(const std::string& filterFile, const std::string& name);
    const std::string& Identity();
    void TellNumbersOfOthers();
    void NoteNumbers(const std::vector<FilterDefinition>& before, const std::vector<FilterDefinition>& after);
    CommentsFileResult ReadComments(const std::string& commentsFile);
    bool MakeRows();
    CommentsOutcome AskToSaveComments();
    void OfferLostComments();
    Language DialogLanguage() const { return view_->DialogLanguage(); }

    ActiveFilters& filters_;
    Registry& registry_;
    const TempFolder& tempFolder_;
    CodePage codePage_;
    CommentJournal journal_;
    DocumentView* view_ = nullptr;
    Logbook logbook_;
    LogbookRows rows_;
    LogbookState state_;
    std::string identity_; // of the logbook that is open; "" = not computed yet
    // The stored filters before this logbook's first change of their numbers, if these were for another one.
    struct NumbersBefore {
        std::vector<FilterDefinition> Filters;
        std::string MadeFor; // its identity
    };
    std::optional<NumbersBefore> numbersBefore_;
    std::vector<FilterDefinition> filtersInForce_;
    std::optional<std::vector<FilterDefinition>> filtersOfRun_; // that made the rows
    mutable std::optional<HiddenEntries> hiddenByRun_;
};
