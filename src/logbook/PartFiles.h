// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>

// The files that AtomicFile writes beside their places: "<name>.<number>.part". One that writes such a file
// by its path may make further ones of it, "<name>.<number>.part.<anything>".

// A new, empty one for the file `target`; empty where it could not be made.
std::filesystem::path MakePartFile(const std::filesystem::path& target, std::error_code& error);

// Lives while part files of a folder are in use. Its begin removes those that a killed program left for the
// file `target`, unless somebody writes in this folder at that time, or the file system knows no locks.
class PartFilesInUse {
  public:
    explicit PartFilesInUse(const std::filesystem::path& target);
    ~PartFilesInUse();
    PartFilesInUse(const PartFilesInUse&) = delete;
    PartFilesInUse& operator=(const PartFilesInUse&) = delete;

  private:
    int handle_ = -1; // of the folder, with a lock
};
