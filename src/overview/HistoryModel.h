// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Texts.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

struct HistoryColumn {
    TextId Header;
    enum { Left, Right } Side = Left;
};

// A table of the overview: a row for each record of the history, in an order that the person chooses by
// column. The text of a cell is made when it is asked for.
class HistoryModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    // The columns must outlive the model.
    HistoryModel(std::span<const HistoryColumn> columns, QObject* parent);

    void SetLanguage(Language language);

    // The number of the record that a row shows.
    std::size_t RecordOf(int row) const { return order_[static_cast<std::size_t>(row)]; }

    // The rows as text for other programs: a line of headers, then a line a row, cells separated by tabs. A
    // tab or line end in a cell becomes a blank.
    QString AsText(const std::vector<int>& rows) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    // Records that are equal in the column keep their own order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

  protected:
    // Shows so many records in the order that was chosen last.
    void ShowRecords(std::size_t count);

    // The text of a cell.
    virtual QString CellOf(std::size_t record, int column) const = 0;

    // What a column is sorted by where that is no text. A column has a number for all records or for none.
    virtual std::optional<double> NumberOf(std::size_t record, int column) const = 0;

    Language DialogLanguage() const { return language_; }

  private:
    void Order();

    std::span<const HistoryColumn> columns_;
    Language language_;
    std::vector<std::uint32_t> order_; // numbers of records, by row
    int sortColumn_ = -1;              // none
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};
