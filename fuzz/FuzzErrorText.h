// SPDX-License-Identifier: MIT
#pragma once

#include "FuzzSupport.h"
#include "eventinfo/EventTextRecord.h"
#include "eventinfo/Numbers.h"

#include <optional>

// The targets for error texts: the first line is the number to look up, below it stands the file.
inline std::int64_t TakeNumber(std::string_view& rest) { return ReadDecimal(TakeLine(rest)).value_or(-1); }

inline void CheckRecord(const std::optional<EventTextRecord>& record, std::int64_t number) {
    if (!record)
        return;
    Check(number >= 0);
    for (const std::string& text :
         {record->Id, record->Message, record->Cause, record->Fix, record->Reaction})
        Check(IsUtf8(text) && text.find('\0') == std::string::npos);
}

// A text without the carriage returns that readers of a file ignore.
inline std::string WithoutReturns(std::string_view text) {
    std::string without(text);
    std::erase(without, '\r');
    return without;
}
