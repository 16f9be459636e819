// SPDX-License-Identifier: MIT
#pragma once

#include "rows/ListSorting.h"
#include "rows/RowRanges.h"
#include "rows/WantedTime.h"
#include "settings/Language.h"

#include <QAbstractTableModel>

#include <functional>
#include <optional>
#include <string>

// The logbook list's rows for a view. Copies and prepares nothing: makes the text of a cell from its entry
// when the view asks for it, which is when the row is on the screen. The accessible text of a row's first
// cell comes from SpokenRow.
class LogbookModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    // The icon number of a row, in the first column.
    static constexpr int ImageRole = Qt::UserRole;

    // Entries and rows must outlive the model. Change the rows only through it.
    LogbookModel(const EntryTable& entries, LogbookRows& rows, QObject* parent = nullptr);

    // Lets `change` fill or clear the rows. Clear them before changing the entries.
    void ChangeRows(const std::function<void()>& change);
    const LogbookRows& Rows() const { return rows_; }

    // Sorts the rows by a column (SortListByColumn), or in this direction. A new filling keeps Order, but its
    // rows are in entry order.
    void SortByColumn(LogbookColumn column, std::optional<SortDirection> direction = {});
    const ListOrder& Order() const { return order_; }
    bool IsSorted() const { return sorted_; }

    // Whether the rows stand in the order in which the logbook recorded them, or in that of their times.
    RowsInTime LiesInTime() const;

    // The tag of a row (RowTag).
    std::string Tag(int row) const;

    // Show changed comments: of the row's entry, or of any entries.
    void ShowComment(int row);
    void ShowComments();

    void RemoveFromList(const RowRanges& ranges);

    // Makes plain rows highlighted, and highlighted rows plain.
    void ToggleHighlighting(const RowRanges& ranges);

    // Sets the language of the column headers and of a screen reader's words.
    void SetLanguage(Language language);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

  signals:
    // A screen reader's words for these rows have changed.
    void SpokenTextChanged(const RowRanges& rows);

    // Of entries with a row or without one.
    void CommentsChanged();

  private:
    const EntryTable& entries_;
    LogbookRows& rows_;
    ListOrder order_;
    bool sorted_ = false;
    Language language_;
};
