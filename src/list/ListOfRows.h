// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QScrollBar>
#include <QStyleOptionViewItem>

#include <algorithm>
#include <optional>

// A view of Qt (QTableView, QTreeWidget) as a list of whole rows, in which several rows can be selected.
//
// Showing a row scrolls only up and down, never sideways. Up, Down, Page Up, Page Down, Home and End select
// the row that they lead to, with Shift all rows up to it; Home and End do so with Ctrl, too. A key that
// cannot move selects the current row, so that keys also work in a list of one row. When nothing is selected,
// Up and Down begin at the current row and skip none. Left and Right scroll sideways.
//
// A derived class decides what the Delete key, a double click and the popup menu do. The popup menu opens
// when the right mouse button goes up, and by its keys.
template <class View>
class ListOfRows : public View {
  public:
    using View::View;

    void scrollTo(const QModelIndex& cell,
                  QAbstractItemView::ScrollHint hint = QAbstractItemView::EnsureVisible) override {
        const int left = this->horizontalScrollBar()->value();
        View::scrollTo(cell, hint);
        this->horizontalScrollBar()->setValue(left);
    }

    // The row for an action on one row: the current row if it is selected, otherwise the first selected row.
    std::optional<int> SelectedRow() const {
        const QModelIndex current = this->currentIndex();
        if (current.isValid() && this->selectionModel()->isSelected(current))
            return current.row();
        std::optional<int> first;
        for (const QItemSelectionRange& range : this->selectionModel()->selection())
            first = std::min(range.top(), first.value_or(range.top()));
        return first;
    }

    // Typed letters do not search: in a long list that takes seconds, and a blank among them would be an
    // order.
    void keyboardSearch(const QString&) override {}

  protected:
    // The selected rows shall go.
    virtual void OrderRemoval() = 0;

    // The popup menu shall show at this place of the screen.
    virtual void OrderPopup(const QPoint& globalPosition) = 0;

    // The left button was clicked twice at this place of the viewport, on a row or beside all.
    virtual void DoubleClicked(QPoint place) = 0;

    void keyPressEvent(QKeyEvent* event) override {
        if (IsRowKey(event->key()))
            return PressRowKey(event);
        if (event->key() == Qt::Key_Delete) {
            OrderRemoval();
        } else if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
            this->horizontalScrollBar()->triggerAction(event->key() == Qt::Key_Left
                                                           ? QScrollBar::SliderSingleStepSub
                                                           : QScrollBar::SliderSingleStepAdd);
        } else if (IsPopupKey(*event)) {
            OrderPopupByKey();
        } else {
            return View::keyPressEvent(event);
        }
        event->accept();
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        View::mouseReleaseEvent(event);
        if (event->button() == Qt::RightButton)
            OrderPopup(event->globalPosition().toPoint());
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override {
        View::mouseDoubleClickEvent(event);
        if (event->button() == Qt::LeftButton)
            DoubleClicked(event->position().toPoint());
    }

    // Shift+F10 comes as this event on Windows, as a key elsewhere. The menu key is a key on all systems, and
    // on some of them makes this event, too.
    void contextMenuEvent(QContextMenuEvent* event) override {
        if (event->reason() == QContextMenuEvent::Keyboard && event->modifiers().testFlag(Qt::ShiftModifier))
            OrderPopupByKey();
        event->accept();
    }

    // A selected row looks the same while another window is in front, which may follow it. Windows would
    // paint it in the colour of a window, which is hardly seen.
    void initViewItemOption(QStyleOptionViewItem* option) const override {
        View::initViewItemOption(option);
        for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
            option->palette.setBrush(QPalette::Inactive, role, option->palette.brush(QPalette::Active, role));
    }

    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& cell,
                                                         const QEvent* event = nullptr) const override {
        // The program selects a row alone, whatever keys are held down.
        if (event == nullptr)
            return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
        if (event->type() == QEvent::KeyPress) {
            const auto* const press = static_cast<const QKeyEvent*>(event);
            if (IsEndKey(press->key()))
                return (press->modifiers().testFlag(Qt::ShiftModifier)
                            ? QItemSelectionModel::SelectCurrent
                            : QItemSelectionModel::ClearAndSelect) |
                       QItemSelectionModel::Rows;
        }
        return View::selectionCommand(cell, event);
    }

  private:
    static bool IsEndKey(int key) { return key == Qt::Key_Home || key == Qt::Key_End; }
    static bool IsRowKey(int key) {
        return IsEndKey(key) || key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
               key == Qt::Key_PageDown;
    }
    static bool IsPopupKey(const QKeyEvent& event) {
        return (event.key() == Qt::Key_Menu && !event.modifiers().testFlag(Qt::ShiftModifier)) ||
               (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
    }

    void OrderPopupByKey() {
        SelectCurrentIfNone();
        OrderPopup(PopupPosition());
    }

    // Selects the current row if none is selected, so that an order has a row.
    void SelectCurrentIfNone() {
        if (!this->selectionModel()->hasSelection() && this->currentIndex().isValid())
            this->setCurrentIndex(this->currentIndex());
    }

    // Below the current row, as far as it is on the screen; else at the top. In coordinates of the screen.
    QPoint PopupPosition() const {
        const QRect cell = this->visualRect(this->currentIndex());
        const QRect area = this->viewport()->rect();
        const QRect row = QRect(area.left(), cell.top(), area.width(), cell.height()) & area;
        return this->viewport()->mapToGlobal(row.isEmpty() ? QPoint() : row.bottomLeft());
    }

    void PressRowKey(QKeyEvent* event) {
        const bool extends = event->modifiers().testFlag(Qt::ShiftModifier);
        const bool selects = !event->modifiers().testFlag(Qt::ControlModifier) || IsEndKey(event->key());
        const bool isStep = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
        const QModelIndex before = this->currentIndex();
        const bool begins = isStep && selects && !extends && !this->selectionModel()->hasSelection();
        if (!begins || !before.isValid())
            View::keyPressEvent(event);
        event->accept();
        if (!selects || !before.isValid() || this->currentIndex() != before)
            return;
        if (extends)
            this->selectionModel()->select(before, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        else
            this->setCurrentIndex(before);
        scrollTo(before);
    }
};
