// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"
#include "base/UserFolders.h"
#include "comments/LostJournal.h"
#include "logbook/EntryTable.h"

#include <cstdint>
#include <filesystem>
#include <set>
#include <span>
#include <system_error>
#include <vector>

// Notes comments that are entered but not yet saved in a file, so that a crash does not lose them. The file
// is JSON Lines: first the logbook, then each comment as it was entered; an empty one removes a comment.
//
//     {"butLast":"5f0c7a...","entries":1200,"last":"07d2b1...","whole":"99aa06..."}
//     {"comment":"pump replaced","entry":12}
//
// The number of its entries and three checksums identify a logbook: of all entries, of all but the last, and
// of the last one's stamp, sender and name. The last entry's data may change when the logbook grows, as by a
// further line of that entry.
//
// The program locks a journal that it uses; where the disk has no locks, the journal's name shows its user
// (JournalName). A journal not in use was left by a copy of the program that crashed, or that ended although
// saving had failed.
class CommentJournal {
  public:
    explicit CommentJournal(std::filesystem::path folder = StateFolder());
    // Comments that were neither saved nor declined stay in their file.
    ~CommentJournal();
    CommentJournal(const CommentJournal&) = delete;
    CommentJournal& operator=(const CommentJournal&) = delete;

    // Notes the present comments of these entries, and flushes them to the disk. The first comments of a
    // logbook make the file, which costs one pass over the whole logbook. The error says why the comments are
    // not safe; the next call then tries to note them again. If somebody has removed the file, this makes it
    // again with all comments. If there is no memory even to remember the numbers, this and all further calls
    // fail until the comments are saved or dropped.
    std::error_code Note(const EntryTable& entries, std::span<const EntryNumber> numbers);

    // Holds journals of this logbook that a crash left, until their comments are saved. The comments of
    // `restored`, which came from them, are noted again when the file is made. Without memory it throws, and
    // holds none.
    void Keep(std::vector<LostJournal> journals, std::span<const EntryNumber> restored);

    // The comments have been saved: removes all journals that hold any. The next Note makes a new one.
    void Saved();

    // The person does not want the comments: removes their journals, also those that they were restored from.
    // Kept journals from which nothing was restored stay as a crash left them.
    void Dropped();

    // The folder of the files.
    const std::filesystem::path& Folder() const { return folder_; }

  private:
    void Remember(std::span<const EntryNumber> numbers);
    std::error_code NoteRemembered(const EntryTable& entries);
    std::error_code Begin(const EntryTable& entries);
    void RemoveFile();
    enum class KeptJournals : std::uint8_t { Go, Stay };
    void End(KeptJournals kept);

    std::filesystem::path folder_;
    std::filesystem::path name_;
    FileHandle file_;
    std::set<EntryNumber> entered_; // whose comments are neither saved nor declined
    std::set<EntryNumber> toNote_;  // of these, those not yet in the file
    std::vector<LostJournal> kept_;
    bool forgotSome_ = false; // the file may lack comments that entered_ does not name
    bool restored_ = false;   // the entries now have the comments of the kept journals
};
