// SPDX-License-Identifier: MIT
#pragma once

#include "base/TempFolder.h"
#include "cli/TerminalUser.h"
#include "document/LogbookDocument.h"
#include "settings/TransientSettings.h"

#include <string>
#include <vector>

// The document that a command works with. Options answer the questions that a person would be asked. Failures
// are reported on standard error. The person's settings, and comments that a crash left, stay as they are.
class TerminalDocument : private DocumentView {
  public:
    struct Options {
        std::vector<std::string> Files; // the command's own; clearing the temporary folder spares them
        std::vector<FilterDefinition> Filters = DefaultFilters(); // active until others take their place
        UserInterface::Answer ArchiveFilters; // whether those of an archive take their place
        Language MessageLanguage = {};
        bool Partial = false; // a logbook that an error ends early is taken up to there
    };
    explicit TerminalDocument(Options options);

    // Opens a source. False when that failed, which it has then reported.
    bool Open(const std::string& file, const FilesInstead& instead = {});

    // Whether the comments of the open logbook could be read, and whether its rows could be made.
    bool HasComments() const { return hasComments_; }
    bool HasRows() const { return hasRows_; }

    // Removes what was unpacked, before a long step that needs only entries and rows.
    void RemoveFiles() { tempFolder_.reset(); }

    // Whether any event was read. FailForNothingRead reports that there is none and returns the exit status.
    bool HasEvents() const { return Entries().HasEvents() || !Book().Starts.empty(); }
    int FailForNothingRead() const;

    // The exit status of a command that ended with this one. If an error has ended the read, which comes with
    // Options::Partial only, Done becomes Unfinished, and a message says how much was read.
    int StatusOf(int printed) const;

    bool ZipLogbook(ArchiveDecisions& decisions) { return document_.ZipLogbook(decisions); }
    const Logbook& Book() const { return document_.Book(); }
    const EntryTable& Entries() const { return document_.Entries(); }
    const LogbookRows& Rows() const { return document_.Rows(); }

  private:
    UserInterface& User() override { return user_; }
    ReadingProgress& Progress() override { return progress_; }
    Language DialogLanguage() const override { return language_; }
    void LogbookIsRead(std::string_view) override { isRead_ = true; }
    void CommentsFailed(const std::string& name, const CommentsFileResult& result) override;
    void FilteringFailed() override { hasRows_ = false; }
    bool OpensWithoutRows() const override { return true; }
    bool TakesUnfinished() const override { return partial_; }
    void LogbookIsUnfinished() override;

    std::string file_; // that was opened
    Language language_;
    bool partial_;
    std::optional<TempFolder> tempFolder_; // the document uses it until RemoveFiles
    TransientSettings settings_;
    Registry registry_{settings_};
    ActiveFiltersOfRun filters_;
    TerminalUser user_;
    TerminalProgress progress_;
    LogbookDocument document_;
    bool isRead_ = false;
    bool isUnfinished_ = false;
    bool hasComments_ = true;
    bool hasRows_ = true;
};
