// SPDX-License-Identifier: MIT
#pragma once

#include "base/PartFiles.h"

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <system_error>

// A file that is written beside its place and put there when it is whole, so that whoever looks there finds
// the old file or the new one and nothing between. Without Commit nothing changes. What a killed program left
// beside the place is removed by the next that writes there. Until it is in its place only this user may read
// it; there it has the permissions of the file that it replaces, or those that a new file has.
class AtomicFile {
  public:
    // A link is followed: the file that it names is replaced, not the link; one that another user may have
    // planted is refused (FollowLinks). A device or a pipe is not replaced.
    explicit AtomicFile(const std::string& path);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    // Where to write. A failure is told by Commit.
    std::ostream& Stream() { return stream_; }

    // The file that is written, for a writer that wants a path in place of a stream. One that replaces it in
    // place of writing into it may lose it to another copy of the program, as its lock is then gone. Empty
    // when it could not be made, which Commit tells.
    const std::filesystem::path& Path() const { return part_.Path; }

    // Flushes the file to the disk and puts it in its place. The error tells why that failed; the old file is
    // then as it was.
    std::error_code Commit();

  private:
    std::error_code error_;
    std::filesystem::path target_;
    PartFile part_;
    std::ofstream stream_;
};

// Makes the new names of files in a folder last. A file system that cannot is no failure: the files have
// their names.
void FlushFolder(const std::filesystem::path& folder);
