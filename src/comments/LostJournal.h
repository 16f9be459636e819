// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <filesystem>
#include <optional>
#include <utility>

// A journal of comments whose program no longer runs (see CommentJournal). It is held, so that no other copy
// of the program offers it at the same time, until the object ends.
class LostJournal {
  public:
    // Nothing where a program that runs has the file, or may have it on a disk without locks (JournalName),
    // or where it is no journal: only one whose first line is short is looked at. Links are not followed, and
    // only ordinary files are opened.
    static std::optional<LostJournal> Hold(const std::filesystem::path& file);

    const std::filesystem::path& File() const { return file_; }

    // Removes the file, as long as it is the one that is held.
    void Remove() const;

  private:
    LostJournal(std::filesystem::path file, FileHandle handle)
        : file_(std::move(file)), handle_(std::move(handle)) {}

    std::filesystem::path file_;
    FileHandle handle_;
};
