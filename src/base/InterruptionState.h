// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

// What the handler of signals (Interruption) leaves for those who look at it or wait, one for the process, as
// signals are; for the files of this folder alone.
namespace InterruptionState {

inline volatile std::sig_atomic_t Signal = 0; // the first that came; 0 = none

// Its reading end becomes readable when a signal comes; -1 without such a thing.
inline int WakePipe[2] = {-1, -1};

} // namespace InterruptionState
