// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "logbook/Logbook.h"
#include "logbook/ReadingProgress.h"

#include <string>

// Reads a logbook file of any generation into logbook.Entries, in one pass.
//
// True: Entries holds EntryCount entries, and `title` is the file-name part of `path`. There is at least one
// entry: when no line was recognised, it is empty, of type -1 and with the icon of an info. False: LoadState
// says why. Done: the file could not be opened or was empty; Entries is one empty entry of type 0 without an
// icon, and EntryCount has not changed. Opening, Reading: a run-time error ended that phase; Entries keeps
// what had been stored. Throws nothing of its own.
//
// Reads each byte about once. Memory is about the size of the text without its padding, 16 bytes an entry,
// and some hundred bytes for each different kind of entry and each different date.
bool ReadLogbook(const std::string& path, Logbook& logbook, std::string& title, ReadingProgress& progress,
                 const CodePage& codePage);
