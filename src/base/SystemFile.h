// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

// Open files by the system's numbers; for the files of this folder alone.
struct SystemFile {
    static FileHandle Handle(int number) { return FileHandle(number); } // -1 = none
    static int Number(const FileHandle& file) { return file.number_; }
};

// Opens a file to lock it; `flags` are those of open(2) without the kind of access. Opens for writing, which
// a lock across a network needs, and for reading only where this user may not write.
FileHandle OpenToLock(const std::filesystem::path& file, int flags, unsigned mode = 0);
