// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// Stands between the joined lines of an event.
inline constexpr std::string_view LineSeparator = " | ";

// The lines of a cell, separated by CR LF. In the list they stand on one line, separated by " | ".
std::string WithLineBreaks(std::string_view cell);
