// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <filesystem>
#include <string_view>
#include <system_error>

// The files that AtomicFile writes beside their places: "<name>.qorvix-part-<16 hexadecimal digits>", for
// their owner only. The writer holds the file's lock, so a part file whose lock is free was left by a killed
// program.

// A part file that is being written.
struct PartFile {
    std::filesystem::path Path; // "" = it could not be made
    FileHandle Handle;          // open for writing; its lock is held, where the disk has locks
};

// Makes a new, empty part file for the file `target`. First removes those that killed programs left for this
// target.
PartFile MakePartFile(const std::filesystem::path& target, std::error_code& error);

// Removes the part files of a target that killed programs left: regular files of this user whose whole name
// is that of a part file and whose lock is free. On a disk without locks it removes none.
void RemoveLeftPartFiles(const std::filesystem::path& target);

// True when writing the file `target` would replace or remove the existing file `other`: they are the same
// file, or `other` has the name of a part file of the target. Links are followed.
bool WritingTouches(const std::filesystem::path& target, const std::filesystem::path& other);

// True when `name`, without a folder, is that of a part file of the target.
bool IsPartFileOf(std::string_view name, const std::filesystem::path& target);
