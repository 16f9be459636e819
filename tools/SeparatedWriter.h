// SPDX-License-Identifier: MIT
#pragma once

class LineBuffer;
class MachineClock;
class MachineStory;
struct MachineEvent;

// The second generation: a separator line carries the date, the events below it the clock time only.
void AppendSeparator(LineBuffer& lines, const MachineClock& clock);
void AppendSeparatedEvent(LineBuffer& lines, const MachineEvent& event, MachineStory& story);
