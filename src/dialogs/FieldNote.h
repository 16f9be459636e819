// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/ElidedLabel.h"

// A dialog's note about the field above it. Takes room only while it has a text, and then a few lines at
// most; the dialog grows if needed, and a screen reader speaks the note. Its dialog must be a FittedDialog.
class FieldNote : public ElidedLabel {
    Q_OBJECT

  public:
    FieldNote(const char* name, QWidget* field);

    // An empty text hides the note.
    void Say(const QString& text);

  private:
    QWidget* field_;
};
