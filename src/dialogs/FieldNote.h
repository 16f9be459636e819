// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// What a dialog has to say about the field above it. Takes room only while it says something; the dialog then
// grows where that is needed, and a screen reader speaks it.
class FieldNote : public QLabel {
    Q_OBJECT

  public:
    FieldNote(const char* name, QWidget* field);

    // Nothing for an empty text.
    void Say(const QString& text);

  private:
    QWidget* field_;
};
