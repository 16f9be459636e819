// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

// Memory of this process that lies in main memory, in bytes: now, and the most there has been. Linux only; 0
// elsewhere.
std::size_t ResidentMemory();
std::size_t PeakResidentMemory();
