// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
#include "settings/UserFolders.h"

#include <filesystem>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

// Comments that were entered and not saved yet, noted in a file so that a crash does not take them. The file
// is JSON Lines: first the logbook, then each comment as it was entered; an empty one removes.
//
//     {"entries":1200,"logbook":"99aa06d3014798d86001c324468d497f"}
//     {"comment":"pump replaced","entry":12}
//
// A file that is in use is locked. One that is not belongs to a copy of the program that crashed, or that
// ended although saving had failed.
class CommentJournal {
  public:
    explicit CommentJournal(std::filesystem::path folder = StateFolder());
    // What was neither saved nor declined stays in its file.
    ~CommentJournal();
    CommentJournal(const CommentJournal&) = delete;
    CommentJournal& operator=(const CommentJournal&) = delete;

    // Notes the comments that these entries have now, and flushes them to the disk. The first of a logbook
    // make the file, for which the whole logbook is looked at once. The error tells why they are not safe;
    // the next call then tries to note them again. A file that somebody removed is made anew with all
    // comments.
    std::error_code Note(const EntryTable& entries, std::span<const EntryNumber> numbers);

    // The comments have been saved, or are not wanted: the file goes. The next Note makes another.
    void Remove();

    // Where the files lie.
    const std::filesystem::path& Folder() const { return folder_; }

  private:
    bool HasFile() const;
    std::error_code Begin(const EntryTable& entries);
    std::error_code Append(std::string_view lines);
    void RemoveFile();
    void Close();

    std::filesystem::path folder_;
    std::filesystem::path file_;
    int handle_ = -1;
    std::set<EntryNumber> entered_; // whose comments are neither saved nor declined
    std::set<EntryNumber> toNote_;  // of these, those that the file does not have yet
};
