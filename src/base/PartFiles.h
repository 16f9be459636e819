// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <filesystem>
#include <string_view>
#include <system_error>

// The files that AtomicFile writes beside their places: "<name>.qorvix-part-<16 hexadecimal digits>", for
// their owner only. Who writes one holds its lock, so that one whose lock is free is what a killed program
// left.

// A part file that is being written.
struct PartFile {
    std::filesystem::path Path; // "" = it could not be made
    FileHandle Handle;          // open for writing; its lock is held, where the disk has locks
};

// A new, empty one for the file `target`. Those that killed programs left for this target are removed first.
PartFile MakePartFile(const std::filesystem::path& target, std::error_code& error);

// Removes the part files of a target that killed programs left: regular files of this user whose whole name
// is that of a part file and whose lock is free. On a disk without locks none is.
void RemoveLeftPartFiles(const std::filesystem::path& target);

// True for the name, without a folder, of a part file of the target.
bool IsPartFileOf(std::string_view name, const std::filesystem::path& target);
