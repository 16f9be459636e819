// SPDX-License-Identifier: MIT
#include "dialogs/SelectingLineEdit.h"

#include <QFocusEvent>
#include <QMouseEvent>

void SelectingLineEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    focusByMouse_ = event->reason() == Qt::MouseFocusReason;
    if (event->reason() != Qt::PopupFocusReason)
        selectAll();
}

void SelectingLineEdit::mousePressEvent(QMouseEvent* event) {
    // The click that brings the focus would set the cursor and remove the selection.
    if (focusByMouse_ && event->button() == Qt::LeftButton)
        event->accept();
    else
        QLineEdit::mousePressEvent(event);
    focusByMouse_ = false;
}
