// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

// Open files as the system knows them, by numbers; for the files of this folder alone.
struct SystemFile {
    static FileHandle Handle(int number) { return FileHandle(number); } // -1 = none
    static int Number(const FileHandle& file) { return file.number_; }
};

// Opens a file for a lock, `flags` as for open(2) without the kind of access: for writing, as a lock across a
// network wants it; only where this user may not write there, for reading.
FileHandle OpenToLock(const std::filesystem::path& file, int flags, unsigned mode = 0);
