// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// A plain text that takes the given room and never asks for more: when it does not fit, its middle is left
// out. The tool tip then shows the whole text, and a screen reader speaks it. A label of several lines breaks
// its text anywhere where there is no blank.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    // `mostLines`: at least 1. A label of one line shows line breaks as blanks.
    ElidedLabel(int mostLines, QWidget* parent);

    // The visible text in a label of this width, line by line.
    QStringList ShownLines(int width) const;

    // The width of the whole text for a label of one line; a label of several lines takes any width.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return mostLines_ > 1; }
    int heightForWidth(int width) const override;

    // What the tool tip says besides, below the text if that does not fit.
    virtual QString Explanation() const { return {}; }

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QString PlainText() const;
    QStringList LinesOf(const QString& text, int width) const;
    int HeightOf(qsizetype lines) const;

    int mostLines_;
};
