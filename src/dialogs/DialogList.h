// SPDX-License-Identifier: MIT
#pragma once

#include "list/ListOfRows.h"

#include <QTreeWidget>

#include <cstdint>
#include <span>

// The list of a dialog: a few rows in columns; several rows can be selected. Signals report what the person
// wants. The popup menu opens when the right mouse button goes up, and by its keys.
class DialogList : public ListOfRows<QTreeWidget> {
    Q_OBJECT

  public:
    explicit DialogList(int columns, QWidget* parent);

    // The row for an action on one row: the current one if it is selected, otherwise the first selected one;
    // nullptr when none is selected.
    QTreeWidgetItem* SelectedRow() const;

    // Selects this row alone and shows it.
    void SelectAndShow(QTreeWidgetItem* row);

    // The other rows keep their order. Then selects the row behind the last removed one, or else the last
    // row.
    void RemoveSelectedRows();

    // Puts the rows into the order of these numbers, which name each row once. The same rows stay selected.
    void Reorder(std::span<const std::uint32_t> rows);

  signals:
    void PopupWanted(const QPoint& position);
    void EditWanted();
    void RemoveWanted();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    QPoint PopupPosition() const;
    bool IsOnCheckBox(QPoint place) const;
};
