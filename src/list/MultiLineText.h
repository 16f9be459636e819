// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The list shows a text of several lines on one line. Elsewhere its lines stand below each other.
inline constexpr const char* LineSeparatorOfCells = " | ";
inline constexpr const char* LineBreak = "\r\n";

inline QString WithLineBreaks(QString cell) { return cell.replace(LineSeparatorOfCells, LineBreak); }
inline QString OnOneLine(QString text) { return text.replace(LineBreak, LineSeparatorOfCells); }
