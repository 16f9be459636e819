// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

// What the signal handler (Interruption) leaves for code that polls or waits. There is one for the process,
// as for signals. Only the files of this folder use it.
namespace InterruptionState {

inline volatile std::sig_atomic_t Signal = 0; // the first that came; 0 = none

// Its reading end becomes readable when a signal comes; -1 when there is no pipe.
inline int WakePipe[2] = {-1, -1};

} // namespace InterruptionState
