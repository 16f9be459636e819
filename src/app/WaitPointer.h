// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

// The hourglass, for as long as this lives.
class WaitPointer {
  public:
    WaitPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitPointer() { QApplication::restoreOverrideCursor(); }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};
