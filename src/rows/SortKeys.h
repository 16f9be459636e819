// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// How the cells of a column are compared: as texts without regard to case, or by a key that is made from the
// text. A cell without a key comes before all others.
enum class SortRule { Text, Date, Number };

// The moment that a time text names, to the second.
using LogbookMoment = std::chrono::sys_seconds;

// Reads "day.month.year", a clock time "h:m", "h:m:s" or "h:m:s.fraction", or both in either order with
// blanks between. A date alone is midnight, a clock time alone is on 30.12.1899; of a year of two digits 00
// to 29 are 20xx, 30 to 99 19xx; a fraction does not count. Nothing when the text is something else, or names
// a day or time that there is not. Years have two or four digits and begin with 100.
std::optional<LogbookMoment> ReadMoment(std::string_view text);

// The key of a date: "YYYYMMDDhhmmss", empty when the text cannot be read as a moment.
std::string DateKey(std::string_view text);

// The key of a number: 30 digits, ".", 30 digits, so that the order of the texts is that of the numbers from
// 0 on. Of a negative number each digit d is 9 - d and a "&" follows: negative numbers are in order among
// themselves, behind all others. Empty when the text is not a number, which is a sign or none, digits, and a
// decimal point with digits or none. More than 30 digits before the point make a longer key; behind the point
// the 31st digit and all after it do not count.
std::string NumberKey(std::string_view text);
