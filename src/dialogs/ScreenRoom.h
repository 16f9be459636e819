// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QScreen;

// The size, or as much of it as a window may have so that it stands on the screen with its frame and with a
// rest of what is behind it.
QSize WithinScreen(QSize size, const QScreen& screen);
