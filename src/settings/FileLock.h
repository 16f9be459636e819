// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// Holds a lock that other processes take, too, by the name of a lock file. The lock ends with the object, or
// with the process. Where the file cannot be made, or something else than a file has its name, nothing is
// held.
//
// Waits until the lock is free, but for no longer than a few seconds: a process that was stopped while it had
// the lock must not keep all others from going on. They then go on as if they had it.
class FileLock {
  public:
    explicit FileLock(const std::string& path);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    bool IsHeld() const { return handle_ >= 0; }

  private:
    bool Take(unsigned mode) const;
    void Release();

    int handle_ = -1;
};
