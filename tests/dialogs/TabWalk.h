// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QWidget>

// The names that a screen reader tells while the Tab key goes once round a window. The window must be active.
inline QStringList NamesOnTabWalk(QWidget& window) {
    QStringList names;
    QWidget* const first = QApplication::focusWidget();
    for (int i = 0; i < 100; ++i) {
        QWidget* const widget = QApplication::focusWidget();
        if (!widget || (i > 0 && widget == first))
            break;
        const QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(widget);
        names << (accessible ? accessible->text(QAccessible::Name) : QString());
        if (names.last().isEmpty())
            qWarning() << "without a name:" << widget;
        QTest::keyClick(&window, Qt::Key_Tab);
    }
    return names;
}
