// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/EventTextRecord.h"

#include <cstdint>
#include <optional>
#include <string>

// The text of a classic NC error, from a file "qx_error_help.txt". It consists of blocks with headings in
// English or German and an empty line behind each block:
//
//     215
//     Axis is not referenced
//     (a line that is not shown)
//     Cause of error:
//     The reference point of the axis is missing.
//     Corrective action:
//     Traverse the reference point.
//
// A line that is exactly the number begins the block. Nothing when there is no such line or the file cannot
// be read; parts missing in a block are empty. The first line behind a heading always belongs to its text.
std::optional<EventTextRecord> ReadClassicNcErrorText(const std::string& fileName, std::int64_t number);
