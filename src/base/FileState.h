// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

// Tells two states of a file apart where every change puts a new file in its place, even two of one size
// within one tick of the clock.
struct FileState {
    std::uint64_t Device = 0;
    std::uint64_t Inode = 0;
    std::int64_t Seconds = 0;
    std::int64_t Nanoseconds = 0;
    std::int64_t Size = -1; // in bytes; -1 = there is no file

    bool operator==(const FileState&) const = default;
};

// The present state of the file that a path names, at the end of links.
FileState StateOf(const std::string& path);
