// SPDX-License-Identifier: MIT
#pragma once

class LineBuffer;
class MachineStory;
struct MachineEvent;

// The first generation: upper-case keywords, the full stamp at the end of each first line.
void AppendClassicEvent(LineBuffer& lines, const MachineEvent& event, MachineStory& story);
