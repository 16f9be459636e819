// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "base/TempFolder.h"
#include "comments/CommentJournal.h"
#include "document/DocumentView.h"
#include "document/LogbookState.h"
#include "document/OpenLogbook.h"
#include "filter/LogbookRow.h"
#include "logbook/Logbook.h"
#include "settings/Registry.h"

#include <filesystem>
#include <string>
#include <vector>

// One logbook as a person works with it: the entries, the rows that the filters let through, the comments,
// where all of it came from, and what a crash must not take.
//
// While it is busy, which Book().Busy says, it carries out no other order.
class LogbookDocument {
  public:
    // The settings and the temporary folder must outlive the document. Comments are noted in `journalFolder`
    // until they are saved. Texts without a code page of their own have `codePage`.
    LogbookDocument(Registry& registry, const TempFolder& tempFolder, CodePage codePage,
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
    bool OpenLogbook(std::string name);

    // Reads the logbook file again, without the comments; the person is asked about edited ones first.
    void Refresh();

    // Reads a logbook file with its comments ("" = none), which messages call by a name, and makes the rows.
    // False when a run-time error left it unfinished, which the person has then been told, or when the person
    // wants it to stop. A file that cannot be opened gives no rows, without a message.
    bool ReadAndShowLogbook(const std::string& file, const std::string& commentsFile,
                            const std::string& commentsName = {});

    // Makes the rows anew with the stored filters, and selects the row of the entry that was selected, or the
    // next one. The rows are then in entry order.
    void ApplyFilter();

    // Sets the comment (UTF-8) of an entry, "" removes it, and notes it.
    void ChangeComment(EntryNumber entry, std::string_view comment);

    // Saves the logbook with its comments and the stored filters as an archive that the person names; true
    // when it did. See ZipLogbook.h.
    bool ZipLogbook();

    // Asks about edited comments before the document goes; false when the person wants to stay. Where saving
    // them did not succeed the document may go all the same: they stay in the journal.
    bool Close();

    // Stores in the settings what the document knows of folders.
    void StoreFolders();

  private:
    bool ExecuteLogbook(std::string& name);
    void ReplaceFilters(const std::string& filterFile, const std::string& name);
    std::string ReadComments(const std::string& commentsFile, const std::string& name);
    bool MakeRows();
    CommentsOutcome AskToSaveComments();
    void OfferLostComments();
    void ShowLoadState();
    Language DialogLanguage() const { return view_->DialogLanguage(); }

    Registry& registry_;
    const TempFolder& tempFolder_;
    CodePage codePage_;
    CommentJournal journal_;
    DocumentView* view_ = nullptr;
    Logbook logbook_;
    LogbookRows rows_;
    LogbookState state_;
};
