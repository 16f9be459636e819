// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

// The signal by which the process has been asked to end, 0 while it has not; one for the process, as signals
// are. A program that ends in good order sets it in its signal handler, see cli/Interruption.h; the window
// leaves it 0. Long steps look at it, and fail.
namespace StopRequest {
inline volatile std::sig_atomic_t Signal = 0;
inline bool IsMade() { return Signal != 0; }
} // namespace StopRequest
