// SPDX-License-Identifier: MIT
#pragma once

#include "base/PartFiles.h"

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <system_error>

// Writes a file beside its place and moves it there when it is whole, so that a reader finds the old file or
// the new one, nothing between. Without Commit nothing changes. If the program is killed, the next one that
// writes to this place removes the unfinished file. Until the move only this user may read the file; then it
// has the permissions of the file that it replaces, or those of a new file.
class AtomicFile {
  public:
    // Follows a link and replaces the file that it names, but refuses a link that another user may have
    // planted (FollowLinks). Never replaces a device or a pipe.
    explicit AtomicFile(const std::string& path);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    // Where to write. Commit reports a failure.
    std::ostream& Stream() { return stream_; }

    // The file that is written, for a writer that needs a path instead of a stream. The writer must write
    // into this file: if it replaces the file, the lock is gone, and another copy of the program may remove
    // it. Empty when the file could not be made; Commit reports that.
    const std::filesystem::path& Path() const { return part_.Path; }

    // Flushes the file to the disk, so that Commit only has to move it. Nothing can be written any more. For
    // files that take their places together: what can fail of all of them comes before the first is moved.
    std::error_code Prepare();

    // Flushes the file to the disk and moves it to its place. On failure it returns the reason, and the old
    // file is unchanged.
    std::error_code Commit();

  private:
    std::error_code error_;
    bool isPrepared_ = false;
    std::filesystem::path target_;
    PartFile part_;
    std::ofstream stream_;
};

// Flushes the new names of files in a folder to the disk. A file system that cannot do this is no failure:
// the files have their names.
void FlushFolder(const std::filesystem::path& folder);
