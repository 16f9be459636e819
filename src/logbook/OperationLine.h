// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/KnownHeaders.h"
#include "logbook/ParsedEntry.h"
#include "logbook/clsFile.h"

#include <string_view>

// The newest generation begins with a heading that names its version. Every event is a header line, followed
// by message lines that are indented by two blanks.
//
// Fills `entry` as ParseClassicLine does. Throws RunTimeError for a keyword line that is too short for its
// stamp.
void ParseOperationLine(std::string_view line, ParsedEntry& entry, clsFile& file, KnownHeaders& headers);
