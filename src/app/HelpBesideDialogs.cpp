// SPDX-License-Identifier: MIT
#include "app/HelpBesideDialogs.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QWindow>

namespace {

// exec() makes a dialog modal to the application, anew each time. Before the dialog is on the screen that can
// still be changed; the attribute is set already, so the native window must be told by itself.
void BlockItsParentsOnly(QDialog& dialog) {
    dialog.setWindowModality(Qt::WindowModal);
    if (QWindow* const native = dialog.windowHandle())
        native->setModality(Qt::WindowModal);
}

bool IsHelpKey(const QEvent& event) {
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

} // namespace

HelpBesideDialogs::HelpBesideDialogs(QWidget* window) : QObject(window), window_(window) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool HelpBesideDialogs::IsAboveWindow(const QObject& widget) const {
    const QObject* object = widget.parent();
    while (object != nullptr && object != window_)
        object = object->parent();
    return object != nullptr;
}

bool HelpBesideDialogs::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        auto* const dialog = qobject_cast<QDialog*>(watched);
        if (dialog != nullptr && dialog->windowModality() == Qt::ApplicationModal && IsAboveWindow(*dialog))
            BlockItsParentsOnly(*dialog);
    } else if (IsHelpKey(*event) && QApplication::activePopupWidget() == nullptr) {
        const auto* const control = qobject_cast<const QWidget*>(watched);
        if (control != nullptr && control->window() != window_ && IsAboveWindow(*control)) {
            emit HelpWanted();
            return true;
        }
    }
    return false;
}
