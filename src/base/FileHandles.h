// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

// Open files, also on disks that can do less than others: a network may have no locks and no flushing.

// An open file, closed at the object's end.
class FileHandle {
  public:
    FileHandle() = default;
    ~FileHandle() { Close(); }
    FileHandle(FileHandle&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }

    bool IsOpen() const { return number_ >= 0; }
    void Close();

  private:
    friend struct SystemFile;
    explicit FileHandle(int number) : number_(number) {}

    int number_ = -1; // -1 = none
};

// Opens a file that others may have put there, to read and to lock it. Follows no link, and does not wait for
// the other end of a pipe.
FileHandle OpenToHold(const std::filesystem::path& file);

// The outcome of TryLock. Unsupported: this disk has no locks. Failed: LastError says why.
enum class LockOutcome { Held, InUse, Unsupported, Failed };

// Takes the lock of an open file for this process, without waiting. It is held until the handle is closed.
LockOutcome TryLock(const FileHandle& file);

// Flushes what was written to the disk. A disk that cannot flush is no failure.
std::error_code Flush(const FileHandle& file);

// True while `name` names the open file itself, not a link to it.
bool IsNameOf(const std::filesystem::path& name, const FileHandle& file);

// True for an open file that is not a folder, device or pipe.
bool IsRegular(const FileHandle& file);

// The first bytes of an open file, at most `most`; "" when it cannot be read.
std::string FirstBytes(const FileHandle& file, std::size_t most);
