// SPDX-License-Identifier: MIT
#pragma once

class LineBuffer;
class MachineStory;
struct MachineEvent;

// The third generation: a version heading, every text in indented lines below the event's header line.
void AppendOperationHeading(LineBuffer& lines);
void AppendOperationEvent(LineBuffer& lines, const MachineEvent& event, MachineStory& story);
