// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/Stamp.h"

// True for a step of the clock that the end of summer time may explain: in the night of the last Sunday of
// October, before six in the morning, back by one hour. Up to ten minutes less is one hour, too: that time
// may have passed between the two lines.
bool MayEndSummerTime(const Stamp& before, const Stamp& after);
