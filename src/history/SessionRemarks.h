// SPDX-License-Identifier: MIT
#pragma once

#include "history/ErrorKey.h"
#include "history/Sessions.h"
#include "settings/Language.h"

#include <string>

// The key of an entry's error.
std::string KeyOf(const EntryTable& entries, const ErrorKeys& keys, EntryNumber entry);

// The start of a session as a person reads it, or why there is none.
std::string StartText(const Session& session, Language language);

// What a person is told of a session besides its counts: steps of the clock, then the last error with its
// time before the last entry. "" when there is neither.
std::string SessionRemarks(const Session& session, const EntryTable& entries, const ErrorKeys& keys,
                           Language language);
