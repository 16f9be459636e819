// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"
#include "base/UserFolders.h"
#include "comments/LostJournal.h"
#include "logbook/EntryTable.h"

#include <filesystem>
#include <set>
#include <span>
#include <system_error>
#include <vector>

// Comments that were entered and not saved yet, noted in a file so that a crash does not take them. The file
// is JSON Lines: first the logbook, then each comment as it was entered; an empty one removes.
//
//     {"butLast":"5f0c7a...","entries":1200,"last":"07d2b1...","whole":"99aa06..."}
//     {"comment":"pump replaced","entry":12}
//
// The logbook is known by the number of its entries, and the checksums of all of them, of all but the last,
// and of the last one's stamp, sender and name. The last one's data may change where a logbook grows, as by a
// line that belongs to it.
//
// A file that is in use is locked; where the disk has no locks, its name tells (JournalName). One that is not
// belongs to a copy of the program that crashed, or that ended although saving had failed.
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

    // Keeps journals of this logbook that a crash left, until their comments are saved, and holds them until
    // then. The entries whose comments were restored from them are noted anew when the file is made.
    void Keep(std::vector<LostJournal> journals, std::span<const EntryNumber> restored);

    // The comments have been saved: all journals that have any go. The next Note makes another.
    void Saved();

    // The comments are not wanted: their journals go, also those that they were restored from. Kept journals
    // of which nothing was restored stay as a crash left them.
    void Dropped();

    // Where the files lie.
    const std::filesystem::path& Folder() const { return folder_; }

  private:
    std::error_code Begin(const EntryTable& entries);
    void RemoveFile();
    void End(bool keptGo);

    std::filesystem::path folder_;
    std::filesystem::path name_;
    FileHandle file_;
    std::set<EntryNumber> entered_; // whose comments are neither saved nor declined
    std::set<EntryNumber> toNote_;  // of these, those that the file does not have yet
    std::vector<LostJournal> kept_;
    bool restored_ = false; // comments of the kept journals are those of the entries now
};
