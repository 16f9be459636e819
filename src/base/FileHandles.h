// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

// Files that are open, on disks that know less than others: a network may have no locks and no flushing.

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

// Opens a file that others may have put there, to look at it and to lock it. A link is not followed, and a
// pipe is opened without waiting for its other end.
FileHandle OpenToHold(const std::filesystem::path& file);

// What came of trying to take a lock. Unsupported: this disk has no locks. Failed: LastError says why.
enum class LockOutcome { Held, InUse, Unsupported, Failed };

// Takes the lock of an open file for this process, without waiting. It is held until the handle is closed.
LockOutcome TryLock(const FileHandle& file);

// Flushes what was written to the disk. A disk that cannot do that is no failure.
std::error_code Flush(const FileHandle& file);

// True while a name is that of an open file, and no link.
bool IsNameOf(const std::filesystem::path& name, const FileHandle& file);

// True for an open file that is no folder, device or pipe.
bool IsRegular(const FileHandle& file);

// The first bytes of an open file, at most `most`; "" also where it cannot be read.
std::string FirstBytes(const FileHandle& file, std::size_t most);
