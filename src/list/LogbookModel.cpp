// SPDX-License-Identifier: MIT
#include "list/LogbookModel.h"

#include "list/LogbookColumns.h"
#include "list/QtText.h"

#include <utility>

LogbookModel::LogbookModel(const EntryTable& entries, QObject* parent)
    : QAbstractTableModel(parent), entries_(entries) {}

void LogbookModel::SetRows(LogbookRows rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

void LogbookModel::SetLanguage(Language language) {
    language_ = language;
    emit headerDataChanged(Qt::Horizontal, 0, LogbookColumnCount - 1);
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
        return ToQString(Text(LogbookColumns[static_cast<std::size_t>(section)].Header, language_));
    return {};
}
