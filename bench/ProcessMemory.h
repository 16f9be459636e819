// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

// The part of this process's memory that lies in main memory, in bytes: now, and at its peak. Linux only; 0
// elsewhere.
std::size_t ResidentMemory();
std::size_t PeakResidentMemory();
