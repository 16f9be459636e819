// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// A plain text that takes the room it is given and never asks for more: what has no room in it is left out in
// its middle. The whole text is then the tool tip, and is what a screen reader speaks. In more than one line
// it breaks anywhere where no blank is at hand.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    // `mostLines`: at least 1. A label of one line shows line breaks as blanks.
    ElidedLabel(int mostLines, QWidget* parent);

    // What is seen of the text in a label of this width, line by line.
    QStringList ShownLines(int width) const;

    // The width of the whole text where it is one line; one of several lines takes any.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return mostLines_ > 1; }
    int heightForWidth(int width) const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QString PlainText() const;
    QStringList LinesOf(const QString& text, int width) const;
    int HeightOf(qsizetype lines) const;

    int mostLines_;
};
