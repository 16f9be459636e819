// SPDX-License-Identifier: MIT
#include "dialogs/ScreenRoom.h"

#include <QScreen>

QSize WithinScreen(QSize size, const QScreen& screen) {
    const QSize available = screen.availableSize();
    return size.boundedTo({available.width() * 9 / 10, available.height() * 9 / 10});
}
