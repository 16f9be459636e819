// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <optional>

class TagViewer;

// The inner area of the main window, between tool bar and status bar: the list, the tag viewer at its right
// edge, and below them the content pane while it is shown. Between list and content pane lies a gap that can
// be dragged. Only the list grows and shrinks with the window; the content pane keeps the height that it was
// dragged to.
class MainArea : public QWidget {
    Q_OBJECT

  public:
    // Takes the three as its children. The content pane begins hidden.
    MainArea(QWidget* list, TagViewer* tagViewer, QWidget* content, QWidget* parent);

    // The gap between list and content pane, and the height that dragging leaves to the list. In twips.
    static constexpr int Gap = 80;
    static constexpr int LowestList = 200;

    // Places everything anew. If the window is too low for the content pane, the list keeps its height.
    void RecalculateLayout();

    // The height of the content pane after the gap was dragged from startY to y, all in twips; nothing when
    // that would leave the content pane a negative height or the list less than LowestList.
    static std::optional<int> ContentHeightAfterDrag(int contentHeight, int startY, int y, int innerHeight);

  signals:
    // After each new layout.
    void LayoutChanged();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    bool IsInGap(int y) const;

    QWidget* list_;
    TagViewer* tagViewer_;
    QWidget* content_;
    int SplitStartY = 0; // twips; 0 = no drag
};
