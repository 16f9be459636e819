// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"

#include <cstdint>
#include <string>
#include <string_view>

// Identifies a logbook for the settings, in a line of text. It holds the number of the first entries that
// count, which are at most 65,536, and two checksums: of all of them but the last, and of the last one's
// stamp, sender and name. So a logbook is recognised wherever it lies, and when it has grown; the control may
// then have added lines to what was its last entry. A logbook from which entries are gone is another one:
// their numbers are too.
//
//     1200 5f0c7a... 07d2b1...
//
// Costs some milliseconds at most. "" for a logbook without entries.
std::string LogbookIdentity(const EntryTable& entries);

// What an identity says of a logbook; Unknown for a text that is none.
enum class Recognised : std::uint8_t { Same, Other, Unknown };
Recognised Recognise(std::string_view identity, const EntryTable& entries);
