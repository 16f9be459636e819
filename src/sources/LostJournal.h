// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <utility>

// A journal of comments whose program no longer runs (see CommentJournal). It is held, so that no other copy
// of the program offers it at the same time, until the object ends.
class LostJournal {
  public:
    // Nothing where a program that runs has the file, or where it is no journal: only one whose first line is
    // short is looked at. Links are not followed, and only ordinary files are opened.
    static std::optional<LostJournal> Hold(const std::filesystem::path& file);

    ~LostJournal();
    LostJournal(LostJournal&& other) noexcept
        : file_(std::move(other.file_)), handle_(std::exchange(other.handle_, -1)) {}
    LostJournal& operator=(LostJournal&& other) noexcept {
        std::swap(file_, other.file_);
        std::swap(handle_, other.handle_);
        return *this;
    }

    const std::filesystem::path& File() const { return file_; }

    // Removes the file, as long as it is the one that is held.
    void Remove() const;

  private:
    LostJournal(std::filesystem::path file, int handle) : file_(std::move(file)), handle_(handle) {}

    std::filesystem::path file_;
    int handle_;
};

// True while a name is that of an open file.
bool IsNameOf(const std::filesystem::path& name, int handle);
