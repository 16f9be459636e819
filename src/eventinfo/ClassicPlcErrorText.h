// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/EventTextRecord.h"

#include <cstdint>
#include <optional>
#include <string>

// The text of a classic error of the machine program, from three files of a folder. "error.a" has a line for
// each error, three digits, a separator and the message. "reason.a" and "fix.a" have blocks, cause and
// corrective action: a line with the number and a blank, then lines of text; lines without a blank are not
// shown.
//
//     error.a                        reason.a
//     012 Coolant level low          012 -
//                                    The coolant has been used up.
//
// Nothing when "error.a" does not have the number, which can have three digits at most, or cannot be read.
// Cause and corrective action are empty where their file has no block or cannot be read.
std::optional<EventTextRecord> ReadClassicPlcErrorText(const std::string& folder, std::int64_t number);
