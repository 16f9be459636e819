// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>
#include <utility>

// Files by their handles, on disks that know less than others: a network may have no locks and no flushing.

// An open file, closed at the object's end.
class FileHandle {
  public:
    FileHandle() = default;
    explicit FileHandle(int number) : number_(number) {}
    ~FileHandle() { Close(); }
    FileHandle(FileHandle&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    void Close();

  private:
    int number_ = -1; // -1 = none
};

// Opens a file for a lock, `flags` as for open(2) without the kind of access: for writing, as a lock across a
// network wants it; only where this user may not write there, for reading.
FileHandle OpenToLock(const std::filesystem::path& file, int flags, unsigned mode = 0);

// What came of trying to take a lock. Unsupported: this disk has no locks. Failed: errno says why.
enum class LockOutcome { Held, InUse, Unsupported, Failed };

// Takes the lock of an open file for this process, without waiting. It is held until the handle is closed.
LockOutcome TryLock(int handle);

// Flushes what was written to the disk. A disk that cannot do that is no failure.
std::error_code Flush(int handle);

// True while a name is that of an open file, and no link.
bool IsNameOf(const std::filesystem::path& name, int handle);
