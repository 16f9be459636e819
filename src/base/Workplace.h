// SPDX-License-Identifier: MIT
#pragma once

#include "base/TempFolder.h"

#include <filesystem>

// A folder in the temporary folder; the destructor removes it with all that was noted in it. The temporary
// folder itself holds the files of the logbook that is shown.
class Workplace {
  public:
    explicit Workplace(const TempFolder& tempFolder)
        : tempFolder_(tempFolder), path_(tempFolder.MakeSubfolder()) {}
    ~Workplace() { tempFolder_.RemoveSubfolder(path_); }
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    // Empty when it could not be made.
    const std::filesystem::path& Path() const { return path_; }

  private:
    const TempFolder& tempFolder_;
    std::filesystem::path path_;
};
