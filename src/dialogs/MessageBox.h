// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

// A message or question. Its text is shown as it stands, since it may hold what a file or path says; it is
// wide enough for its title.
class MessageBox : public QMessageBox {
  public:
    // Enter presses the default button, where there is one.
    MessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons, QWidget* parent,
               StandardButton defaultButton = NoButton);

  protected:
    void showEvent(QShowEvent* event) override;
};
