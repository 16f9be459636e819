// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <filesystem>
#include <optional>
#include <utility>

// A journal of comments whose program no longer runs (see CommentJournal). The object holds it while it
// lives, so that no other copy of the program offers it at the same time.
class LostJournal {
  public:
    // Nothing when a running program has the file, or may have it on a disk without locks (JournalName), or
    // when it is no journal. Checks only files with a short first line. Follows no links and opens only
    // ordinary files.
    static std::optional<LostJournal> Hold(const std::filesystem::path& file);

    const std::filesystem::path& File() const { return file_; }

    // Removes the file if it is still the one that is held.
    void Remove() const;

  private:
    LostJournal(std::filesystem::path file, FileHandle handle)
        : file_(std::move(file)), handle_(std::move(handle)) {}

    std::filesystem::path file_;
    FileHandle handle_;
};
