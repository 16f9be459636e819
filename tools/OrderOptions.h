// SPDX-License-Identifier: MIT
#pragma once

#include "tools/LogbookWriter.h"
#include "tools/RingCutter.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

// The command line of make-logbook.
extern const char* const MakeLogbookUsage;

struct LogbookCommand {
    LogbookOrder order;
    std::string truthFile; // "" is none
};

// Nothing for what the usage does not allow.
std::optional<LogbookCommand> ReadLogbookCommand(std::string_view generation,
                                                 std::span<const std::string_view> options);
std::optional<RingOrder> ReadRingOrder(std::span<const std::string_view> options);
