// SPDX-License-Identifier: MIT
#include "dialogs/ScrolledContent.h"

#include <QApplication>

ScrolledContent::ScrolledContent(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(new QWidget(this));
    // Qt does this for Tab alone, not for access keys.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, QWidget* focused) {
        if (focused != nullptr && isAncestorOf(focused))
            ensureWidgetVisible(focused);
    });
}

QSize ScrolledContent::minimumSizeHint() const {
    const int line = fontMetrics().lineSpacing();
    return widget()->minimumSizeHint().boundedTo({12 * line, 3 * line});
}
