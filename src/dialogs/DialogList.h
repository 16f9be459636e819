// SPDX-License-Identifier: MIT
#pragma once

#include "list/ListOfRows.h"

#include <QTreeWidget>

#include <cstdint>
#include <span>

// The list of a dialog: a few rows in columns; several rows can be selected. Signals report what the person
// wants.
class DialogList : public ListOfRows<QTreeWidget> {
    Q_OBJECT

  public:
    explicit DialogList(int columns, QWidget* parent);

    // The row for an action on one row, see ListOfRows::SelectedRow; nullptr when none is selected.
    QTreeWidgetItem* SelectedItem() const;

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
    void OrderRemoval() override { emit RemoveWanted(); }
    void OrderPopup(const QPoint& globalPosition) override { emit PopupWanted(globalPosition); }
    void DoubleClicked(QPoint place) override;

  private:
    bool IsOnCheckBox(QPoint place) const;
};
