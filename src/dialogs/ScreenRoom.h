// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>

class QScreen;
class QWidget;

// The size, or as much of it as a window may have so that it stands on the screen with its frame and with a
// rest of what is behind it.
QSize WithinScreen(QSize size, const QScreen& screen);

// Gives a window this size, or as much of it as fits its screen; that of its parent where it has not been
// shown yet. One that would then reach beyond the screen's lower or right edge is moved.
void ResizeOnScreen(QWidget& window, QSize size);

// The place of a window's inside, when `place` is the one of its frame: the same where screens show all of
// it, or where it is no larger than the screen that shows the most of it. Otherwise as large as that screen
// allows, and whole on it.
QRect PlaceOnScreens(const QRect& place);

// The width of a column that is stored with this many twips, in pixels: no wider than all screens together.
int ColumnWidth(int twips);

// What to store for a column of this width: the stored twips where they give it.
int ColumnTwips(int pixels, int storedTwips);
