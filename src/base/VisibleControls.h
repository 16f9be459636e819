// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// The text with its control characters as JSON writes them, ESC as "\u001b", so that a terminal does not obey
// what a logbook or the name of a file holds. Control characters are U+0000 to U+001F and U+007F to U+009F;
// those in `kept` (ASCII) stay. A byte 0x80 to 0x9F that belongs to no UTF-8 character counts as the
// character with its number; other such bytes stay.
std::string WithVisibleControls(std::string_view utf8, std::string_view kept = {});
