// SPDX-License-Identifier: MIT
#pragma once

#include "rows/ListSorting.h"
#include "rows/RowRanges.h"
#include "settings/Language.h"

#include <QAbstractTableModel>

#include <functional>
#include <string>

// The logbook list's rows for a view. Nothing is copied or prepared: the text of a cell is made from its
// entry when the view asks for it, which is when the row is on the screen. The accessible text of a row's
// first cell is what SpokenRow.h says.
class LogbookModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    // The icon number of a row, on the first column.
    static constexpr int ImageRole = Qt::UserRole;

    // Entries and rows must outlive the model. The rows are changed through it.
    LogbookModel(const EntryTable& entries, LogbookRows& rows, QObject* parent = nullptr);

    // Fills or clears the rows by `change`. Whoever changes the entries clears the rows first.
    void ChangeRows(const std::function<void()>& change);
    const LogbookRows& Rows() const { return rows_; }

    // Sorts the rows by a column, as ListSorting.h says. How the list was sorted last is kept over a new
    // filling; the rows of that are in entry order.
    void SortByColumn(LogbookColumn column);
    const ListOrder& Order() const { return order_; }
    bool IsSorted() const { return sorted_; }

    // The tag of a row, as ListSorting.h says.
    std::string Tag(int row) const;

    // The comment of the row's entry has changed; those of any entries have.
    void ShowComment(int row);
    void ShowComments();

    void TakeOutRows(const RowRanges& ranges);

    // Plain rows become highlighted, highlighted ones plain.
    void SwitchHighlighting(const RowRanges& ranges);

    // The language of the column headers and of what a screen reader says.
    void SetLanguage(Language language);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

  signals:
    // A screen reader is to say something else for these rows than before.
    void SpokenTextChanged(const RowRanges& rows);

  private:
    const EntryTable& entries_;
    LogbookRows& rows_;
    ListOrder order_;
    bool sorted_ = false;
    Language language_;
};
