// SPDX-License-Identifier: MIT
#pragma once

#include <array>

// Room for a stamp: two digits of the day, the month between dots, the year, a blank, and the clock with
// milliseconds.
using StampRoom = std::array<char, 2 + 4 + 4 + 1 + 12>;
