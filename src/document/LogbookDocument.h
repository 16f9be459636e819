// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "base/TempFolder.h"
#include "comments/CommentJournal.h"
#include "comments/Comments.h"
#include "document/ActiveFilters.h"
#include "document/ArchiveDecisions.h"
#include "document/DocumentView.h"
#include "document/LogbookState.h"
#include "document/OpenLogbook.h"
#include "filter/LogbookRow.h"
#include "logbook/Logbook.h"
#include "settings/Registry.h"

#include <filesystem>
#include <string>
#include <vector>

// Files that take the place of those that a source carries; "" = those of the source.
struct FilesInstead {
    std::string Comments = {};
    std::string Filters = {};
};

// One logbook as a person works with it: the entries, the rows that the filters let through, the comments,
// where all of it came from, and what a crash must not take.
//
// While it is busy, which Book().Busy says, it carries out no other order.
class LogbookDocument {
  public:
    // What a document works with; all of it must outlive the document.
    struct Surroundings {
        ActiveFilters& Filters;
        Registry& Settings; // has the folders of the last logbook and the last archive
        const TempFolder& Temp;
    };

    // Comments are noted in `journalFolder` until they are saved; with "" they are not, and no lost ones are
    // offered. Texts without a code page of their own have `codePage`.
    LogbookDocument(Surroundings surroundings, CodePage codePage,
                    std::filesystem::path journalFolder = StateFolder());

    // Who shows the document from now on. There must be one before the first order.
    void ShowIn(DocumentView& view) { view_ = &view; }

    const Logbook& Book() const { return logbook_; }
    Logbook& Book() { return logbook_; }
    const EntryTable& Entries() const { return logbook_.Entries; }
    LogbookRows& Rows() { return rows_; }
    const LogbookRows& Rows() const { return rows_; }
    const CodePage& FileCodePage() const { return codePage_; }

    // Opens the logbooks that a command line names, one after the other, each in place of the one before; the
    // last that opens stays. Shows the usage where the command line asks for it.
    void RunCommandLine(const std::vector<std::string>& arguments);

    // Opens one source: a logbook file, a service archive or an own archive; "" asks for it. Before edited
    // comments go, the person is asked about them. False when the person cancelled or the read was left
    // unfinished.
    bool OpenLogbook(std::string name, const FilesInstead& instead = {});

    // Reads the logbook file again, without the comments; the person is asked about edited ones first.
    void Refresh();

    // Reads a logbook file with its comments ("" = none), which messages call by a name, and makes the rows.
    // False when a run-time error left it unfinished, which the view has then been told, or when the person
    // wants it to stop. A file that cannot be opened gives no rows.
    bool ReadAndShowLogbook(const std::string& file, const std::string& commentsFile,
                            const std::string& commentsName = {});

    // Makes the rows anew with the active filters, and selects the row of the entry that was selected, or the
    // next one. The rows are then in entry order.
    void ApplyFilter();

    // Sets the comment (UTF-8) of an entry, "" removes it, and notes it.
    void ChangeComment(EntryNumber entry, std::string_view comment);

    // Saves the logbook with its comments and the active filters as an archive; true when it did. Without
    // decisions of its own the person is asked. See ZipLogbook.h.
    bool ZipLogbook();
    bool ZipLogbook(ArchiveDecisions& decisions);

    // Asks about edited comments before the document goes; false when the person wants to stay. Where saving
    // them did not succeed the document may go all the same: they stay in the journal.
    bool Close();

    // Stores in the settings what the document knows of folders.
    void StoreFolders();

  private:
    bool ExecuteLogbook(std::string& name, const FilesInstead& instead = {});
    void ReplaceFilters(const std::string& filterFile, const std::string& name);
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
};
