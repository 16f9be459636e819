// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

// A text box that selects its whole text when it receives the focus, also by the mouse, so that typing
// replaces it. A return from its own popup menu does not change the selection.
class SelectingLineEdit : public QLineEdit {
    Q_OBJECT

  public:
    using QLineEdit::QLineEdit;

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    bool focusByMouse_ = false;
};
