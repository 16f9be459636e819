// SPDX-License-Identifier: MIT
#include "list/LogbookView.h"

#include "list/LogbookModel.h"
#include "list/RowDelegate.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QUrl>

#include <algorithm>

namespace {

// The file that was dropped; nothing unless it is exactly one and no folder.
std::optional<QString> DroppedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile())
        return std::nullopt;
    const QString path = urls.front().toLocalFile();
    return QFileInfo(path).isDir() ? std::nullopt : std::optional(path);
}

} // namespace

LogbookView::LogbookView(QWidget* parent) : QTableView(parent) {
    setObjectName("lvLogbook");
    setItemDelegate(new RowDelegate(this));
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setAcceptDrops(true);
    setDragDropMode(DropOnly);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(std::max(fontMetrics().height(), RowIconSize) + 4);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
}

void LogbookView::SetLogbook(LogbookModel* model) {
    model_ = model;
    setModel(model);
}

RowRanges LogbookView::SelectedRanges() const {
    RowRanges ranges;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        ranges.push_back({static_cast<std::size_t>(range.top()), static_cast<std::size_t>(range.bottom())});
    return Joined(std::move(ranges));
}

std::optional<int> LogbookView::SelectedRow() const {
    const QModelIndex current = currentIndex();
    if (current.isValid() && selectionModel()->isSelected(current))
        return current.row();
    std::optional<int> first;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        first = std::min(range.top(), first.value_or(range.top()));
    return first;
}

void LogbookView::SelectRanges(const RowRanges& ranges, std::optional<int> current) {
    const int lastColumn = model()->columnCount() - 1;
    QItemSelection selection;
    for (const RowRange& range : ranges)
        selection.append(QItemSelectionRange(model()->index(static_cast<int>(range.First), 0),
                                             model()->index(static_cast<int>(range.Last), lastColumn)));
    if (current)
        selectionModel()->setCurrentIndex(model()->index(*current, 0), QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void LogbookView::SortByColumn(int column) {
    const SelectedEntries selected(model_->Rows(), SelectedRanges());
    std::optional<EntryNumber> current;
    if (currentIndex().isValid())
        current = model_->Rows()[static_cast<std::size_t>(currentIndex().row())].Entry;
    // Otherwise each selected cell would be carried through the sort by itself.
    selectionModel()->reset();
    model_->SortByColumn(static_cast<LogbookColumn>(column));
    std::optional<int> currentRow;
    if (current)
        if (const auto row = std::find_if(model_->Rows().begin(), model_->Rows().end(),
                                          [&](const LogbookRow& shown) { return shown.Entry == *current; });
            row != model_->Rows().end())
            currentRow = static_cast<int>(row - model_->Rows().begin());
    SelectRanges(selected.RangesIn(model_->Rows(), MostSelectedRanges), currentRow);
    ShowSortIndicator();
}

void LogbookView::RemoveRows(const RowRanges& ranges) {
    if (ranges.empty())
        return;
    const int top = verticalScrollBar()->value();
    model_->TakeOutRows(ranges);
    verticalScrollBar()->setValue(top);
    const std::size_t next = ranges.back().Last + 1 - RowCount(ranges);
    if (!model_->Rows().empty())
        selectionModel()->setCurrentIndex(
            model_->index(static_cast<int>(std::min(next, model_->Rows().size() - 1)), 0),
            QItemSelectionModel::NoUpdate);
}

void LogbookView::ShowSortIndicator() {
    const ListOrder& order = model_->Order();
    horizontalHeader()->setSortIndicatorShown(model_->IsSorted());
    if (model_->IsSorted())
        horizontalHeader()->setSortIndicator(order.LastSortColumn,
                                             order.Descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void LogbookView::SelectAndShow(int row) {
    SelectRanges({{static_cast<std::size_t>(row), static_cast<std::size_t>(row)}}, row);
    scrollTo(model()->index(row, 0));
}

void LogbookView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Delete:
        emit RemoveWanted();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit PropertiesWanted();
        break;
    case Qt::Key_Space:
        emit ToggleWanted();
        break;
    case Qt::Key_Menu:
        emit PopupWanted(PopupPosition());
        break;
    default:
        QTableView::keyPressEvent(event);
        return;
    }
    event->accept();
}

void LogbookView::keyReleaseEvent(QKeyEvent* event) {
    QTableView::keyReleaseEvent(event);
    emit KeyUp();
}

void LogbookView::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    const bool right = event->button() == Qt::RightButton;
    if ((right || event->button() == Qt::LeftButton) && indexAt(event->position().toPoint()).isValid())
        emit RowClicked();
    if (right)
        emit PopupWanted(event->globalPosition().toPoint());
    emit MouseUp();
}

void LogbookView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid())
        emit PropertiesWanted();
}

// The popup menu comes with the mouse-up of the right button and with its key.
void LogbookView::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }

QPoint LogbookView::PopupPosition() const {
    const QRect row = visualRect(currentIndex());
    const QRect seen = row & viewport()->rect();
    return viewport()->mapToGlobal(seen.isEmpty() ? QPoint()
                                                  : QPoint(viewport()->rect().left(), seen.bottom()));
}

// Whatever the other program proposes, its file stays where it is.
void LogbookView::TakeCopy(QDropEvent* event) {
    const bool taken = (event->possibleActions() & (Qt::CopyAction | Qt::LinkAction)) != 0 &&
                       DroppedFile(*event->mimeData()).has_value();
    if (taken)
        event->setDropAction(event->possibleActions().testFlag(Qt::CopyAction) ? Qt::CopyAction
                                                                               : Qt::LinkAction);
    event->setAccepted(taken);
}

void LogbookView::dragEnterEvent(QDragEnterEvent* event) { TakeCopy(event); }

void LogbookView::dragMoveEvent(QDragMoveEvent* event) { TakeCopy(event); }

void LogbookView::dropEvent(QDropEvent* event) {
    TakeCopy(event);
    if (event->isAccepted())
        emit FileDropped(*DroppedFile(*event->mimeData()));
}
