// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <string>

// Holds a lock that other processes take, too, by the name of a lock file. The lock ends with the object, or
// with the process. Where the file cannot be made, or something else than a file has its name, nothing is
// held.
//
// Waits until the lock is free, but for no longer than a few seconds: a process that was stopped while it had
// the lock must not keep all others from going on. They then go on as if they had it. So do all where the
// disk has no locks.
class FileLock {
  public:
    explicit FileLock(const std::string& path);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    bool IsHeld() const { return handle_.IsOpen(); }

  private:
    bool Take() const;

    FileHandle handle_;
};
