// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// How to compare the cells of a column: as texts without regard to case, or by a key made from the text. A
// cell without a key comes before all others.
enum class SortRule { Text, Date, Number };

// The moment that a time text names, to the second.
using LogbookMoment = std::chrono::sys_seconds;

// Reads a time text as ReadDateAndClock does. A date alone means midnight; a clock time alone is
// on 30.12.1899. A fraction of a second does not count.
std::optional<LogbookMoment> ReadMoment(std::string_view text);

// The key of a date: "YYYYMMDDhhmmss", empty when the text cannot be read as a moment.
std::string DateKey(std::string_view text);

// The key of a number: 30 digits, ".", 30 digits, so that the order of the texts is that of the numbers from
// 0 on. In a negative number 9 - d replaces each digit d, and a "&" follows: negative numbers are in order
// among themselves, behind all others. Empty when the text is not a number: an optional sign, digits, and
// optionally a decimal point with digits. More than 30 digits before the point make a longer key; behind the
// point, digits from the 31st on do not count.
std::string NumberKey(std::string_view text);
