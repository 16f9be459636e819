// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScrollBar>

// A view of Qt (QTableView, QTreeWidget) as a list of whole rows, in which several rows can be selected.
//
// Showing a row scrolls only up and down, never sideways. Up, Down, Page Up, Page Down, Home and End select
// the row that they lead to, with Shift all rows up to it; Home and End do so with Ctrl, too. A key that
// cannot move selects the current row, so that keys also work in a list of one row. When nothing is selected,
// Up and Down begin at the current row and skip none.
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

    // Typed letters do not search: in a long list that takes seconds, and a blank among them would be an
    // order.
    void keyboardSearch(const QString&) override {}

  protected:
    // The keys of the popup menu.
    static bool IsPopupKey(const QKeyEvent& event) {
        return event.key() == Qt::Key_Menu ||
               (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
    }

    // Selects the current row when none is selected, for an order that needs a row.
    void SelectCurrentIfNone() {
        if (!this->selectionModel()->hasSelection() && this->currentIndex().isValid())
            this->setCurrentIndex(this->currentIndex());
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (!IsRowKey(event->key()))
            return View::keyPressEvent(event);
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
};
