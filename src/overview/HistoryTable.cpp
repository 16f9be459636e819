// SPDX-License-Identifier: MIT
#include "overview/HistoryTable.h"

#include "overview/HistoryModel.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

HistoryTable::HistoryTable(QWidget* parent) : ListOfRows(parent) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    horizontalHeader()->setHighlightSections(false);
    auto* copy = new QAction(this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &HistoryTable::CopyRows);
    addAction(copy);
}

void HistoryTable::SetHistory(HistoryModel* model) {
    model_ = model;
    setModel(model);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
}

std::optional<std::size_t> HistoryTable::SelectedRecord() const {
    const std::optional<int> row = SelectedRow();
    return row ? std::optional(model_->RecordOf(*row)) : std::nullopt;
}

void HistoryTable::SelectRecord(std::size_t record) {
    for (int row = 0; row < model_->rowCount(); ++row) {
        if (model_->RecordOf(row) != record)
            continue;
        if (SelectedRow() != row)
            selectRow(row);
        return scrollTo(model_->index(row, 0));
    }
}

void HistoryTable::FitColumnWidths(int widest) {
    for (int column = 0; column < model_->columnCount(); ++column) {
        resizeColumnToContents(column);
        setColumnWidth(column, std::min(columnWidth(column), widest));
    }
}

void HistoryTable::CopyRows() const {
    std::vector<int> rows;
    for (const QModelIndex& row : selectionModel()->selectedRows())
        rows.push_back(row.row());
    if (rows.empty())
        return;
    std::sort(rows.begin(), rows.end());
    QApplication::clipboard()->setText(model_->AsText(rows));
}

void HistoryTable::DoubleClicked(QPoint place) {
    if (indexAt(place).isValid())
        emit EntryWanted();
}

void HistoryTable::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return ListOfRows::keyPressEvent(event);
    emit EntryWanted();
    event->accept();
}

void HistoryTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    ListOfRows::selectionChanged(selected, deselected);
    emit SelectionChanged();
}
