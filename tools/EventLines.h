// SPDX-License-Identifier: MIT
#pragma once

#include "tools/MachineEvent.h"

#include <cstddef>

class Dice;
class LineBuffer;

// The pieces of lines that the generations have in common.

// The columns at which header fields and texts begin.
inline constexpr std::size_t TextColumn = 10;

// ENT down code 0x000D mode MANUAL
void AppendKeyWords(LineBuffer& lines, const MachineEvent& event);
// 0x0041 -> A
void AppendStrokeWords(LineBuffer& lines, const MachineEvent& event);
// 0x and four digits
void AppendKeyCode(LineBuffer& lines, unsigned code);
// GEO AXISMON
void AppendSenderAndName(LineBuffer& lines, const MachineEvent& event);

// The message lines of the event, indented by two blanks.
void AppendMessageLines(LineBuffer& lines, const MachineEvent& event, Dice& dice);
// The indented lines of a register dump; the program counter stands in the last one only.
void AppendRegisterLines(LineBuffer& lines, Dice& dice);
// The one message line of a telegram: a heading of 50 columns, then its bytes, at least 60 columns.
void AppendDumpLine(LineBuffer& lines, Dice& dice);
