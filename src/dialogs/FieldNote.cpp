// SPDX-License-Identifier: MIT
#include "dialogs/FieldNote.h"

#include <QAccessible>
#include <QLayout>

FieldNote::FieldNote(const char* name, QWidget* field) : QLabel(field->parentWidget()), field_(field) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

void FieldNote::Say(const QString& text) {
    if (text == this->text())
        return;
    setText(text);
    setVisible(!text.isEmpty());
    field_->setAccessibleDescription(text);
    if (text.isEmpty())
        return;
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
    // A window does not grow by itself for text that breaks into lines.
    QWidget* const dialog = window();
    dialog->layout()->activate();
    dialog->resize(dialog->size().expandedTo({0, dialog->layout()->totalHeightForWidth(dialog->width())}));
}
