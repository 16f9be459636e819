// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>

class QScreen;
class QWidget;

// The size, reduced as far as needed so that the window with its frame fits on the screen and leaves a part
// of the background visible.
QSize WithinScreen(QSize size, const QScreen& screen);

// Gives a window this size, or as much of it as fits its screen (its parent's screen if it has not been shown
// yet). Moves a window that would reach beyond the screen's lower or right edge.
void ResizeOnScreen(QWidget& window, QSize size);

// The place of a window's inside, when `place` is that of its frame. It is the same when the screens show all
// of it, or when it is no larger than the screen that shows the most of it; otherwise it is as large as that
// screen allows, and whole on it.
QRect PlaceOnScreens(const QRect& place);

// The width in pixels of a column stored with this many twips: no wider than all screens together.
int ColumnWidth(int twips);

// The twips to store for a column of this width: the stored ones if they give this width.
int ColumnTwips(int pixels, int storedTwips);
