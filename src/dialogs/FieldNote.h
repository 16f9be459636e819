// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/ElidedLabel.h"

// What a dialog has to say about the field above it. Takes room only while it says something, and then some
// lines at most; the dialog grows where that is needed, and a screen reader speaks it. Stands in a
// FittedDialog.
class FieldNote : public ElidedLabel {
    Q_OBJECT

  public:
    FieldNote(const char* name, QWidget* field);

    // Nothing for an empty text.
    void Say(const QString& text);

  private:
    QWidget* field_;
};
