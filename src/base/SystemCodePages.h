// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>

// The characters of bytes 0x80 to 0xFF of a single-byte code page.
using UpperHalf = std::array<char16_t, 128>;

// By the system's own table; nothing when it has none. A byte that the code page leaves undefined has its own
// number.
std::optional<UpperHalf> UpperHalfOfSystem(const char* codePageName);
