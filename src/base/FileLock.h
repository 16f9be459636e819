// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <string>
#include <string_view>

// Holds a lock among processes, by the name of a lock file. The lock ends with the object, or with the
// process. Nothing is held where the file cannot be made, or where something other than a file has its name.
//
// Waits until the lock is free, but only for a few seconds: a process that was stopped while it held the lock
// must not block all others. They then go on as if they held it, and so does every process where the disk has
// no locks.
class FileLock {
  public:
    explicit FileLock(const std::string& path);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // A lock file that the programs of this user share.
    static std::string OfUser(std::string_view name);

    bool IsHeld() const { return handle_.IsOpen(); }

  private:
    bool Take() const;

    FileHandle handle_;
};
