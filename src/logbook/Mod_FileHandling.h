// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "logbook/Logbook.h"
#include "logbook/ReadingProgress.h"

#include <cstdint>
#include <functional>
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

// Takes the number of an entry and where its first line begins, in bytes from the file's beginning. A
// separator line that is read with the entry counts as its first line. False ends the read.
using TakeEntryPlace = std::function<bool(std::int64_t number, std::uint64_t place)>;

// Finds out where the entries of a logbook file begin: reads it as ReadLogbook does, and hands over each
// entry that ReadLogbook would store, in their order. Keeps no entries, so memory does not grow with the
// file.
//
// False when the file could not be opened, was empty, or when a run-time error ended the read.
bool ReadEntryPlaces(const std::string& path, ReadingProgress& progress, const TakeEntryPlace& take);
