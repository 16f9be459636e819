// SPDX-License-Identifier: MIT
#pragma once

#include "base/Blanks.h"
#include "base/RunTimeError.h"
#include "logbook/StampRoom.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Cuts texts by columns. A text here has one byte a character; columns count from 1. The results point into
// the given text.

// Throws the RunTimeError for a line that lacks a column.
[[noreturn]] void ThrowTooShort();

// `length` characters from column `start` on; fewer where the text ends, "" past its end. Throws RunTimeError
// for a start below 1 or a negative length.
inline std::string_view Mid(std::string_view text, std::int64_t start, std::int64_t length) {
    if (start < 1 || length < 0)
        ThrowTooShort();
    const std::size_t begin = std::min(static_cast<std::size_t>(start - 1), text.size());
    return text.substr(begin, static_cast<std::size_t>(length));
}

// Everything from column `start` on.
inline std::string_view Mid(std::string_view text, std::int64_t start) {
    return Mid(text, start, static_cast<std::int64_t>(text.size()));
}

// The first `length` characters. Throws RunTimeError for a negative length.
inline std::string_view Left(std::string_view text, std::int64_t length) { return Mid(text, 1, length); }

// The last `length` characters; the whole text when it is shorter.
inline std::string_view Right(std::string_view text, std::size_t length) {
    return text.substr(text.size() - std::min(length, text.size()));
}

// Turns "clock weekday month day year", with single blanks and English month names, into the day-first stamp:
// "12:34:56 Mon Jan 04 2010" gives "04.01.2010 12:34:56". The clock may have milliseconds. With an unknown
// month, nothing stands between day and year. The stamp lies in `room`.
std::string_view NormaliseStamp(std::string_view text, StampRoom& room);

// The printable ASCII character of a hexadecimal key code such as "0x0041", or "". Digits are upper case; any
// other character counts as -1. A value that does not fit 64 bits gives "".
std::string_view HexToChar(std::string_view text);
