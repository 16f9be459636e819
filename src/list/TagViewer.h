// SPDX-License-Identifier: MIT
#pragma once

#include "rows/TagMarks.h"

#include <QPixmap>
#include <QWidget>

class LogbookView;
class QTimer;

// The overview of the whole list at its right edge: a cyan mark for each highlighted row at the height of its
// place in the list, over them a red one for the selected row. A click jumps to the row at that height; the
// row under the pointer is told as a tool tip. The marks keep their colours in every palette.
class TagViewer : public QWidget {
    Q_OBJECT

  public:
    // The list, with its logbook set before anything is drawn, and the entries outlive the viewer.
    TagViewer(LogbookView& list, const EntryTable& entries, QWidget* parent = nullptr);

    // Draws everything anew soon, from a timer. To be called after each change of rows, of the selection or
    // of the highlighting.
    void RefreshTagViewerDelayed();

    // One step of the drawing. True when it is done.
    bool RefreshTagViewer();

    // Places the viewer beside the list: from below the column headers to where the rows end, which is above
    // the list's horizontal scroll bar while there is one. It follows the scroll bar by itself.
    void ResizeTagViewer();

    // The red mark has at least so many logical pixels.
    static constexpr int LowestSelectionMark = 2;

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QSize PictureSize() const;
    int RowAt(double y) const;
    QString ToolTipAt(double y) const;

    LogbookView& list_;
    const EntryTable& entries_;
    QTimer* tmTagViewer;
    TagMarks marks_;
    QPixmap picture_; // in pixels of the screen
};
