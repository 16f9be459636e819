// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// A text as a tool tip, which shows it as it is: its blanks all stand, what looks like markup is none. A text
// that is too long for one line wraps, also where it has no blanks, as lists of numbers have none. "" for "".
QString ToolTipOf(const QString& text);
