// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QLayout;
class QScrollArea;

// A dialog that stands whole on the screen that it opens on, also a small one with large letters. What it
// shows shrinks and then scrolls; its buttons are always in view.
class FittedDialog : public QDialog {
    Q_OBJECT

  public:
    explicit FittedDialog(QWidget* parent) : QDialog(parent) {}

    // Makes the dialog as high as its content now needs, where the screen has the room; one that is not shown
    // yet becomes so when it is. It never shrinks.
    void GrowToContent();

    void setVisible(bool visible) override;

  protected:
    // Lays the dialog out: the content, which has no parent yet, above the buttons. For a dialog whose
    // content has a fixed height; one with a list or a text box, which shrink, needs none of this.
    void LayOut(QLayout* content, QWidget* buttons);

  private:
    QSize WithContent(QSize size) const;

    QScrollArea* content_ = nullptr; // these two of LayOut
    QWidget* buttons_ = nullptr;
};
