// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "logbook/Logbook.h"
#include "logbook/ReadingProgress.h"

#include <string>

// Reads a logbook file of any generation into logbook.Entries, in one pass.
//
// True: Entries holds EntryCount entries, at least one (when no line was recognised, the one that a parser is
// handed: empty, of type -1 and with the icon of an info), and `title` is the file-name part of `path`.
// False: LoadState tells why. Done: the file could not be opened or was empty; Entries is one empty entry
// that no parser has seen, of type 0 and without an icon, EntryCount as it was. Opening, Reading: a run-time
// error ended that phase; Entries keeps what had been stored. It throws nothing of its own.
//
// Costs about one look at each byte. Memory is about the size of the text without its padding, 16 bytes an
// entry, and some hundred bytes for each different kind of entry and each different date.
bool ReadLogbook(const std::string& path, Logbook& logbook, std::string& title, ReadingProgress& progress,
                 const CodePage& codePage);
