// SPDX-License-Identifier: MIT
#pragma once

#include "rows/TagMarks.h"

#include <QPixmap>
#include <QWidget>

class LogbookView;
class QTimer;

// The overview of the whole list at its right edge: a cyan mark for each highlighted row at the height of its
// place in the list, and over them a red mark for the selected row. A click jumps to the row at that height;
// a tool tip shows the row under the pointer. The marks keep their colours in every palette.
class TagViewer : public QWidget {
    Q_OBJECT

  public:
    // List and entries must outlive the viewer; set the list's logbook before anything is drawn.
    TagViewer(LogbookView& list, const EntryTable& entries, QWidget* parent = nullptr);

    // Draws everything again soon, from a timer. Call it after each change of rows, selection or
    // highlighting.
    void RefreshTagViewerDelayed();

    // One step of the drawing. True when it is done.
    bool RefreshTagViewer();

    // Places the viewer beside the list: from below the column headers to where the rows end, which is above
    // the list's horizontal scroll bar while there is one. It follows the scroll bar by itself.
    void ResizeTagViewer();

    // The least height of the red mark, in logical pixels.
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
