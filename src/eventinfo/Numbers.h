// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// The numbers of events and errors as in codes and files. Reading stops at the first character that is no
// digit. No number is negative.

// The result for a number that no event has: a negative one, or one with too many digits.
inline constexpr std::int64_t NumberOfNothing = -1;

// Hexadecimal, in capital or small letters, at most eight digits. 0 when the text begins with no digit.
std::int64_t ReadHexadecimal(std::string_view text);

// Decimal, with blanks and a sign before it; nothing when there is no digit.
std::optional<std::int64_t> ReadDecimal(std::string_view text);

// True for a text of decimal digits only.
bool IsDecimal(std::string_view text);
