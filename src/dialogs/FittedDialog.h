// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QLayout;
class QScrollArea;

// A dialog that fits whole on the screen where it opens, even a small screen with large letters. Its content
// shrinks and then scrolls; its buttons are always visible.
class FittedDialog : public QDialog {
    Q_OBJECT

  public:
    explicit FittedDialog(QWidget* parent) : QDialog(parent) {}

    // Makes the dialog as high as its content now needs, if the screen has room; a hidden dialog grows when
    // it is shown. It never shrinks.
    void GrowToContent();

    void setVisible(bool visible) override;

  protected:
    // Lays the dialog out: the content, which must have no parent yet, above the buttons. For a dialog whose
    // content has a fixed height; a list or a text box can shrink and does not need this.
    void LayOut(QLayout* content, QWidget* buttons);

  private:
    QSize WithContent(QSize size) const;

    QScrollArea* content_ = nullptr; // both from LayOut
    QWidget* buttons_ = nullptr;
};
