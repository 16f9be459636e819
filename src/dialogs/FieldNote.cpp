// SPDX-License-Identifier: MIT
#include "dialogs/FieldNote.h"

#include "dialogs/FittedDialog.h"

#include <QAccessible>

namespace {
constexpr int MostLines = 4; // a note holds a file's name, too
} // namespace

FieldNote::FieldNote(const char* name, QWidget* field)
    : ElidedLabel(MostLines, field->parentWidget()), field_(field) {
    setObjectName(name);
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
    if (auto* const dialog = qobject_cast<FittedDialog*>(window()))
        dialog->GrowToContent();
}
