// SPDX-License-Identifier: MIT
#pragma once

#include "list/ListOfRows.h"

#include <QTreeWidget>

#include <cstdint>
#include <span>

// The list of a dialog: a few rows in columns, of which several can be selected. What the person wants done
// comes out as a signal.
class DialogList : public ListOfRows<QTreeWidget> {
    Q_OBJECT

  public:
    explicit DialogList(int columns, QWidget* parent);

    // The row that an order for one row is for, see ListOfRows; nullptr when none is selected.
    QTreeWidgetItem* SelectedItem() const;

    // Selects this row alone and shows it.
    void SelectAndShow(QTreeWidgetItem* row);

    // The others keep their order. The one behind the last removed is selected then, or the last of all.
    void RemoveSelectedRows();

    // Puts the rows into the order of these numbers, each row's own once. The same rows stay selected.
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
