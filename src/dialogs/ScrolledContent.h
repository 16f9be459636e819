// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

// What a window holds, all of it shown when there is room, otherwise with scroll bars. What gets the focus
// comes into view.
class ScrolledContent : public QScrollArea {
  public:
    explicit ScrolledContent(QWidget* parent);

    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override; // of a few lines
};
