// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"

#include <QIcon>

#include <array>

// The pictures of the list's icon numbers: first the plain ones in the order of Images, then the highlighted
// ones in the same order. The highlighted form is the plain one's shape in a darker tone on a bright framed
// badge, so that a row's kind and its highlight are both visible without colour.
inline constexpr std::array<const char*, 2 * HighlightedImageOffset> RowIconPaths{
    ":/row/info.svg",
    ":/row/warning.svg",
    ":/row/error.svg",
    ":/row/fatal.svg",
    ":/row/key.svg",
    ":/row/key-string.svg", // no parser gives number 6; a row that carries it still gets a picture
    ":/row/mouse.svg",
    ":/row/restart.svg",
    ":/row/status-on.svg",
    ":/row/status-blink.svg",
    ":/row/status-off.svg",
    ":/row/debug-send.svg",
    ":/row/debug-receive.svg",
    ":/row/error-cleared.svg",
    ":/row/info-highlighted.svg",
    ":/row/warning-highlighted.svg",
    ":/row/error-highlighted.svg",
    ":/row/fatal-highlighted.svg",
    ":/row/key-highlighted.svg",
    ":/row/key-string-highlighted.svg",
    ":/row/mouse-highlighted.svg",
    ":/row/restart-highlighted.svg",
    ":/row/status-on-highlighted.svg",
    ":/row/status-blink-highlighted.svg",
    ":/row/status-off-highlighted.svg",
    ":/row/debug-send-highlighted.svg",
    ":/row/debug-receive-highlighted.svg",
    ":/row/error-cleared-highlighted.svg",
};

// The side of a row's picture; the pictures are drawn on the pixel grid of this size.
inline constexpr int RowIconSize = 16; // device-independent pixels

// The icons of the list, loaded once and shared by all rows. Needs a QGuiApplication for as long as it lives.
class RowIcons {
  public:
    RowIcons();

    // The icon of an icon number (1 to 28, see RowImage); a null icon for any other number.
    QIcon Icon(int image) const;

  private:
    std::array<QIcon, RowIconPaths.size()> icons_;
};
