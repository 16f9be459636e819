// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

// A message or question. Shows its text without interpreting markup, since the text may come from a file or a
// path. It is wide enough for its title.
class MessageBox : public QMessageBox {
  public:
    // Enter presses the default button, if there is one.
    MessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons, QWidget* parent,
               StandardButton defaultButton = NoButton);

  protected:
    void showEvent(QShowEvent* event) override;
};
