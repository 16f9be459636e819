// SPDX-License-Identifier: MIT
#include "list/LogbookModel.h"

#include "list/QtText.h"
#include "rows/EntryActions.h"
#include "rows/LogbookColumns.h"
#include "rows/SpokenRow.h"

#include <unordered_map>
#include <utility>
#include <vector>

LogbookModel::LogbookModel(const EntryTable& entries, LogbookRows& rows, QObject* parent)
    : QAbstractTableModel(parent), entries_(entries), rows_(rows) {}

void LogbookModel::ChangeRows(const std::function<void()>& change) {
    beginResetModel();
    change();
    order_.ResetTags();
    sorted_ = false;
    endResetModel();
}

void LogbookModel::SortByColumn(LogbookColumn column, std::optional<SortDirection> direction) {
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    // The few persistent indexes follow their entries.
    const QModelIndexList before = persistentIndexList();
    std::vector<EntryNumber> entryOf;
    std::unordered_map<EntryNumber, int> rowOf;
    for (const QModelIndex& index : before) {
        entryOf.push_back(rows_[static_cast<std::size_t>(index.row())].Entry);
        rowOf[entryOf.back()] = index.row();
    }

    ListOrder order = order_;
    // The column of the last sort inverts the direction.
    if (direction)
        order.Direction =
            order.LastSortColumn == static_cast<int>(column) ? Opposite(*direction) : *direction;
    if (SortListByColumn(entries_, rows_, column, order)) {
        order_ = order;
        sorted_ = true;
    }

    if (!before.isEmpty()) {
        for (std::size_t row = 0; row < rows_.size(); ++row)
            if (const auto kept = rowOf.find(rows_[row].Entry); kept != rowOf.end())
                kept->second = static_cast<int>(row);
        QModelIndexList after;
        for (qsizetype i = 0; i < before.size(); ++i)
            after << createIndex(rowOf.at(entryOf[static_cast<std::size_t>(i)]), before[i].column());
        changePersistentIndexList(before, after);
    }
    emit layoutChanged({}, VerticalSortHint);
}

RowsInTime LogbookModel::LiesInTime() const {
    const auto column = static_cast<LogbookColumn>(order_.LastSortColumn);
    const bool isInTime = !sorted_ || (order_.Direction == SortDirection::Ascending &&
                                       (column == LogbookColumn::Time || column == LogbookColumn::Index));
    return isInTime ? RowsInTime::Onward : RowsInTime::Anyhow;
}

std::string LogbookModel::Tag(int row) const {
    return RowTag(entries_, rows_[static_cast<std::size_t>(row)].Entry, order_);
}

void LogbookModel::ShowComment(int row) {
    const QModelIndex cell = index(row, static_cast<int>(LogbookColumn::Comment));
    emit dataChanged(cell, cell);
}

void LogbookModel::ShowComments() {
    const int column = static_cast<int>(LogbookColumn::Comment);
    if (rowCount() > 0)
        emit dataChanged(index(0, column), index(rowCount() - 1, column));
    emit CommentsChanged();
}

void LogbookModel::RemoveFromList(const RowRanges& ranges) {
    beginResetModel();
    ::RemoveFromList(rows_, ranges);
    endResetModel();
}

void LogbookModel::ToggleHighlighting(const RowRanges& ranges) {
    if (ranges.empty())
        return;
    ::ToggleHighlighting(rows_, ranges);
    emit dataChanged(index(static_cast<int>(ranges.front().First), 0),
                     index(static_cast<int>(ranges.back().Last), 0));
    emit SpokenTextChanged(ranges);
}

void LogbookModel::SetLanguage(Language language) {
    language_ = language;
    emit headerDataChanged(Qt::Horizontal, 0, LogbookColumnCount - 1);
    if (!rows_.empty())
        emit SpokenTextChanged({{0, rows_.size() - 1}});
}

int LogbookModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int LogbookModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : LogbookColumnCount;
}

QVariant LogbookModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LogbookRow& row = rows_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole)
        return ToQString(CellText(entries_, row.Entry, static_cast<LogbookColumn>(index.column())));
    if (role == ImageRole && index.column() == 0)
        return RowImage(row, entries_);
    if (role == Qt::AccessibleTextRole && index.column() == 0)
        return ToQString(SpokenRow(entries_, row, language_));
    return {};
}

QVariant LogbookModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 &&
        section < LogbookColumnCount)
        return ToQString(Text(LogbookColumns[static_cast<std::size_t>(section)].Header, language_));
    return {};
}
