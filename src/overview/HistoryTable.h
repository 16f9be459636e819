// SPDX-License-Identifier: MIT
#pragma once

#include "list/ListOfRows.h"

#include <QTableView>

class HistoryModel;

// A table of the overview on the screen. A click on a header sorts by the column, a second one the other way
// round. Copying puts the selected rows on the clipboard.
class HistoryTable : public ListOfRows<QTableView> {
    Q_OBJECT

  public:
    explicit HistoryTable(QWidget* parent);

    void SetHistory(HistoryModel* model);

    // The record of SelectedRow.
    std::optional<std::size_t> SelectedRecord() const;

    // Selects the record's row alone and shows it.
    void SelectRecord(std::size_t record);

    // Makes each column as wide as the header and the first rows need, and none wider than `widest` pixels.
    void FitColumnWidths(int widest);

    void CopyRows() const;

  signals:
    void EntryWanted();
    void RemovalWanted();
    void PopupWanted(const QPoint& globalPosition);
    void SelectionChanged();

  protected:
    void OrderRemoval() override { emit RemovalWanted(); }
    void OrderPopup(const QPoint& globalPosition) override { emit PopupWanted(globalPosition); }
    void DoubleClicked(QPoint place) override;
    void keyPressEvent(QKeyEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

  private:
    HistoryModel* model_ = nullptr;
};
