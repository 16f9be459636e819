// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// A text as a tool tip that shows it unchanged: keeps all blanks and does not interpret markup. A text that
// is too long for one line wraps, even without blanks, such as a list of numbers. "" for "".
QString ToolTipOf(const QString& text);
