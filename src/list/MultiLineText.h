// SPDX-License-Identifier: MIT
#pragma once

#include "list/QtText.h"
#include "logbook/EventLines.h"
#include "rows/ContentText.h"

#include <QString>

// The list shows a text of several lines on one line; other places show its lines below each other.
inline QString WithLineBreaks(const QString& cell) { return ToQString(WithLineBreaks(cell.toStdString())); }
inline QString OnOneLine(QString text) { return text.replace("\r\n", ToQString(LineSeparator)); }
