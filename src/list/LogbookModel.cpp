// SPDX-License-Identifier: MIT
#include "list/LogbookModel.h"

#include "list/LogbookColumns.h"

#include <utility>

namespace {
QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
} // namespace

LogbookModel::LogbookModel(const EntryTable& entries, QObject* parent)
    : QAbstractTableModel(parent), entries_(entries) {}

void LogbookModel::SetRows(LogbookRows rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
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
    return {};
}

QVariant LogbookModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 &&
        section < LogbookColumnCount)
        return ToQString(LogbookColumns[static_cast<std::size_t>(section)].Header);
    return {};
}
