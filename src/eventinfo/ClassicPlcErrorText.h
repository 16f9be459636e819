// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/EventTextRecord.h"

#include <cstdint>
#include <optional>
#include <string>

// The text of a classic error of the machine program, from three files of a folder. "error.a" has a line for
// each error: three digits, a separator and the message. "reason.a" has the causes and "fix.a" the corrective
// actions, in blocks: a line with the number and a blank, then lines of text. Lines without a blank are not
// shown.
//
//     error.a                        reason.a
//     012 Coolant level low          012 -
//                                    The coolant has been used up.
//
// Nothing when "error.a" lacks the number, which has at most three digits, or cannot be read. Cause and
// corrective action are empty when their file has no block or cannot be read.
std::optional<EventTextRecord> ReadClassicPlcErrorText(const std::string& folder, std::int64_t number);
