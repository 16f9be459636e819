// SPDX-License-Identifier: MIT
#include "base/StopRequest.h"

#include "base/InterruptionState.h"

bool StopRequest::IsMade() { return InterruptionState::Signal != 0; }
