// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/EventTextRecord.h"

#include <cstdint>
#include <optional>
#include <string>

// The text of an event of facility 0x300, from a file "ErrorText.csv": a header line, then a line for each
// event with number, message, cause and corrective action, separated by ";". Double quotes are dropped, and
// "|" is a line break in the last two.
//
// The first line with the number counts; nothing when there is no such line or the file cannot be read. A
// line without a number matches nothing.
std::optional<EventTextRecord> ReadCsvErrorText(const std::string& fileName, std::int64_t number);
