// SPDX-License-Identifier: MIT
#include "dialogs/ScreenRoom.h"

#include "list/Twips.h"

#include <QGuiApplication>
#include <QRegion>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

// A window's frame around its inside, on nearly every desktop.
constexpr QMargins Frame(8, 40, 8, 8);

const QScreen& ScreenOf(const QWidget& window) {
    const QWidget* const parent = window.parentWidget();
    return parent != nullptr && !window.isVisible() ? *parent->screen() : *window.screen();
}

const QScreen& ScreenWithMostOf(const QRect& place) {
    const QScreen* most = QGuiApplication::primaryScreen();
    qint64 mostSeen = 0;
    for (const QScreen* const screen : QGuiApplication::screens()) {
        const QRect part = place & screen->availableGeometry();
        const qint64 seen = qint64{part.width()} * part.height();
        if (seen > mostSeen) {
            most = screen;
            mostSeen = seen;
        }
    }
    return *most;
}

bool IsShownWhole(const QRect& place) {
    QRegion hidden(place);
    for (const QScreen* const screen : QGuiApplication::screens())
        hidden -= screen->availableGeometry();
    return hidden.isEmpty();
}

} // namespace

QSize WithinScreen(QSize size, const QScreen& screen) {
    const QSize available = screen.availableSize();
    return size.boundedTo({available.width() * 9 / 10, available.height() * 9 / 10});
}

void ResizeOnScreen(QWidget& window, QSize size) {
    const QScreen& screen = ScreenOf(window);
    window.resize(WithinScreen(size, screen));
    if (!window.isVisible())
        return;
    const QRect available = screen.availableGeometry();
    const QRect frame = window.frameGeometry();
    const QPoint beyond(std::max(0, frame.right() - available.right()),
                        std::max(0, frame.bottom() - available.bottom()));
    if (!beyond.isNull())
        window.move(frame.topLeft() - beyond);
}

QRect PlaceOnScreens(const QRect& place) {
    const QRect available = ScreenWithMostOf(place).availableGeometry();
    const QSize room = available.marginsRemoved(Frame).size();
    if ((place.width() <= room.width() && place.height() <= room.height()) ||
        IsShownWhole(place.marginsAdded({0, 0, Frame.left() + Frame.right(), Frame.top() + Frame.bottom()})))
        return place;
    const QSize size = place.size().boundedTo(room);
    const QPoint last = available.bottomRight() - QPoint(size.width() + Frame.left() + Frame.right() - 1,
                                                         size.height() + Frame.top() + Frame.bottom() - 1);
    return {QPoint(std::clamp(place.x(), available.x(), last.x()),
                   std::clamp(place.y(), available.y(), last.y())),
            size};
}

int ColumnWidth(int twips) {
    const int widest = QGuiApplication::primaryScreen()->availableVirtualGeometry().width();
    return std::clamp(PixelsOf(twips), 0, widest);
}

int ColumnTwips(int pixels, int storedTwips) {
    return ColumnWidth(storedTwips) == pixels ? storedTwips : TwipsToStore(pixels, storedTwips);
}
