// SPDX-License-Identifier: MIT
#include "overview/HistoryModel.h"

#include "list/QtText.h"

#include <QCollator>

#include <algorithm>
#include <numeric>

HistoryModel::HistoryModel(std::span<const HistoryColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(columns) {}

void HistoryModel::SetLanguage(Language language) {
    language_ = language;
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void HistoryModel::ShowRecords(std::size_t count) {
    beginResetModel();
    order_.resize(count);
    Order();
    endResetModel();
}

void HistoryModel::sort(int column, Qt::SortOrder order) {
    sortColumn_ = column;
    sortOrder_ = order;
    emit layoutAboutToBeChanged();
    const std::vector<std::uint32_t> before = order_;
    Order();
    // The selection stays on its records.
    std::vector<int> rows(order_.size());
    for (std::size_t row = 0; row < order_.size(); ++row)
        rows[order_[row]] = static_cast<int>(row);
    const QModelIndexList old = persistentIndexList();
    QModelIndexList moved;
    for (const QModelIndex& cell : old)
        moved.append(index(rows[before[static_cast<std::size_t>(cell.row())]], cell.column()));
    changePersistentIndexList(old, moved);
    emit layoutChanged();
}

void HistoryModel::Order() {
    std::iota(order_.begin(), order_.end(), 0U);
    if (sortColumn_ < 0 || order_.empty())
        return;
    const auto inOrder = [&](const auto& keys, auto isLess) {
        std::stable_sort(order_.begin(), order_.end(), [&](std::uint32_t a, std::uint32_t b) {
            return sortOrder_ == Qt::AscendingOrder ? isLess(keys[a], keys[b]) : isLess(keys[b], keys[a]);
        });
    };
    if (NumberOf(0, sortColumn_)) {
        std::vector<double> numbers;
        for (std::size_t record = 0; record < order_.size(); ++record)
            numbers.push_back(NumberOf(record, sortColumn_).value_or(0));
        return inOrder(numbers, std::less<>());
    }
    const QCollator collator(QLocale(language_.IsGerman() ? QLocale::German : QLocale::English));
    std::vector<QCollatorSortKey> keys;
    for (std::size_t record = 0; record < order_.size(); ++record)
        keys.push_back(collator.sortKey(CellOf(record, sortColumn_)));
    inOrder(keys, [](const QCollatorSortKey& a, const QCollatorSortKey& b) { return a.compare(b) < 0; });
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int HistoryModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return ShownInCell(CellOf(RecordOf(index.row()), index.column()));
    case Qt::ToolTipRole:
        return CellOf(RecordOf(index.row()), index.column()).left(2000).toHtmlEscaped();
    case Qt::TextAlignmentRole:
        return static_cast<int>(columns_[static_cast<std::size_t>(index.column())].Side ==
                                        HistoryColumn::Right
                                    ? Qt::AlignRight | Qt::AlignVCenter
                                    : Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const HistoryColumn& column = columns_[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return QtText(column.Header, language_);
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(column.Side == HistoryColumn::Right ? Qt::AlignRight | Qt::AlignVCenter
                                                                    : Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

QString HistoryModel::AsText(const std::vector<int>& rows) const {
    QString text;
    const auto addLine = [&](auto cell) {
        for (int column = 0; column < columnCount(); ++column) {
            QString piece = cell(column);
            for (const QChar end : {'\t', '\r', '\n'})
                piece.replace(end, ' ');
            text += (column > 0 ? "\t" : "") + piece;
        }
        text += '\n';
    };
    addLine([&](int column) { return headerData(column, Qt::Horizontal).toString(); });
    for (const int row : rows)
        addLine([&](int column) { return CellOf(RecordOf(row), column); });
    return text;
}
