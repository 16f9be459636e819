// SPDX-License-Identifier: MIT
#include "list/LogbookView.h"

#include "list/LogbookModel.h"
#include "list/RowDelegate.h"

#include <QAccessible>
#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

// The dropped file; nothing unless it is exactly one and no folder.
std::optional<QString> DroppedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile())
        return std::nullopt;
    const QString path = QDir::toNativeSeparators(urls.front().toLocalFile());
    return QFileInfo(path).isDir() ? std::nullopt : std::optional(path);
}

// Makes the first cell of a row the current one, whichever was clicked: a screen reader speaks the row from
// that cell.
class SelectionOfRows : public QItemSelectionModel {
  public:
    using QItemSelectionModel::QItemSelectionModel;

    void setCurrentIndex(const QModelIndex& cell, QItemSelectionModel::SelectionFlags command) override {
        QItemSelectionModel::setCurrentIndex(cell.siblingAtColumn(0), command);
    }
};

} // namespace

LogbookView::LogbookView(QWidget* parent) : ListOfRows(parent) {
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
    auto* copy = new QAction(this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &LogbookView::CopyWanted);
    addAction(copy);
}

void LogbookView::SetLogbook(LogbookModel* model) {
    model_ = model;
    setModel(model);
    const QItemSelectionModel* const ofCells = selectionModel();
    setSelectionModel(new SelectionOfRows(model, this));
    delete ofCells;
    connect(model, &LogbookModel::SpokenTextChanged, this, &LogbookView::AnnounceRows);
}

RowRanges LogbookView::SelectedRanges() const {
    RowRanges ranges;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        ranges.push_back({static_cast<std::size_t>(range.top()), static_cast<std::size_t>(range.bottom())});
    return Joined(std::move(ranges));
}

void LogbookView::SelectRanges(const RowRanges& ranges, std::optional<int> current) {
    const int lastColumn = model()->columnCount() - 1;
    QItemSelection selection;
    for (const RowRange& range : ranges)
        selection.append(QItemSelectionRange(model()->index(static_cast<int>(range.First), 0),
                                             model()->index(static_cast<int>(range.Last), lastColumn)));
    if (current) {
        setAutoScroll(false);
        setCurrentIndex(model()->index(*current, 0));
        setAutoScroll(true);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void LogbookView::SortByColumn(int column, std::optional<SortDirection> direction) {
    const SelectedEntries selected(model_->Rows(), SelectedRanges());
    std::optional<EntryNumber> current;
    if (currentIndex().isValid())
        current = model_->Rows()[static_cast<std::size_t>(currentIndex().row())].Entry;
    // Otherwise the sort would carry each selected cell along singly.
    selectionModel()->reset();
    model_->SortByColumn(static_cast<LogbookColumn>(column), direction);
    std::optional<int> currentRow;
    if (current)
        if (const auto row = std::find_if(model_->Rows().begin(), model_->Rows().end(),
                                          [&](const LogbookRow& shown) { return shown.Entry == *current; });
            row != model_->Rows().end())
            currentRow = static_cast<int>(row - model_->Rows().begin());
    SelectRanges(selected.RangesIn(model_->Rows(), MostSelectedRanges), currentRow);
    ShowSortIndicator();
}

void LogbookView::FitColumnWidths() {
    for (int column = 0; column < model_->columnCount(); ++column) {
        resizeColumnToContents(column);
        setColumnWidth(column, std::min(columnWidth(column), viewport()->width()));
    }
}

void LogbookView::RemoveFromList(const RowRanges& ranges) {
    if (ranges.empty())
        return;
    const int top = verticalScrollBar()->value();
    model_->RemoveFromList(ranges);
    verticalScrollBar()->setValue(top);
    const std::size_t next = ranges.back().Last + 1 - RowCount(ranges);
    if (!model_->Rows().empty())
        SelectAndShow(static_cast<int>(std::min(next, model_->Rows().size() - 1)));
}

void LogbookView::RemoveBeside(const RowRanges& ranges) {
    const RowRanges before = SelectedRanges();
    const SelectedEntries selected(model_->Rows(), before);
    const auto top = static_cast<std::size_t>(verticalScrollBar()->value());
    std::size_t removedAbove = 0;
    for (const RowRange& range : ranges)
        if (range.First < top)
            removedAbove += std::min(range.Last, top - 1) - range.First + 1;
    RemoveFromList(ranges);
    const RowRanges left = selected.RangesIn(model_->Rows(), MostSelectedRanges);
    if (left.empty() && !before.empty())
        return;
    SelectRanges(left, left.empty() ? std::nullopt : std::optional(static_cast<int>(left.front().First)));
    verticalScrollBar()->setValue(static_cast<int>(top - removedAbove));
}

void LogbookView::ShowSortIndicator() {
    const ListOrder& order = model_->Order();
    horizontalHeader()->setSortIndicatorShown(model_->IsSorted());
    if (model_->IsSorted())
        horizontalHeader()->setSortIndicator(
            order.LastSortColumn,
            order.Direction == SortDirection::Descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void LogbookView::SelectAndShow(int row) {
    SelectRanges({{static_cast<std::size_t>(row), static_cast<std::size_t>(row)}}, row);
    scrollTo(model()->index(row, 0));
}

// A drop on the header, a scroll bar or the corner comes to the list itself.
bool LogbookView::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return viewportEvent(event);
    default:
        return ListOfRows::event(event);
    }
}

QModelIndex LogbookView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveHome || action == MoveEnd)
        return model()->index(action == MoveHome ? 0 : model()->rowCount() - 1, 0);
    return ListOfRows::moveCursor(action, modifiers);
}

void LogbookView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    ListOfRows::currentChanged(current, previous);
    for (const QModelIndex& cell : {current, previous})
        if (cell.isValid())
            viewport()->update(RowRect(cell.row()));
}

// The frame of the focus, in a colour that stands out against the row's own.
void LogbookView::paintEvent(QPaintEvent* event) {
    ListOfRows::paintEvent(event);
    if (!hasFocus() || !currentIndex().isValid())
        return;
    const bool selected = selectionModel()->isSelected(currentIndex());
    QPainter painter(viewport());
    painter.setPen(palette().color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter.drawRect(RowRect(currentIndex().row()).adjusted(1, 1, -2, -2));
}

void LogbookView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit PropertiesWanted();
        break;
    case Qt::Key_Space:
        emit ToggleHighlightingWanted();
        break;
    default:
        return ListOfRows::keyPressEvent(event);
    }
    event->accept();
}

void LogbookView::keyReleaseEvent(QKeyEvent* event) {
    ListOfRows::keyReleaseEvent(event);
    emit KeyUp();
}

void LogbookView::mousePressEvent(QMouseEvent* event) {
    ListOfRows::mousePressEvent(event);
    rowPressed_ = indexAt(event->position().toPoint()).isValid();
}

void LogbookView::mouseReleaseEvent(QMouseEvent* event) {
    ListOfRows::mouseReleaseEvent(event);
    const bool onRow = std::exchange(rowPressed_, false) || indexAt(event->position().toPoint()).isValid();
    if ((event->button() == Qt::RightButton || event->button() == Qt::LeftButton) && onRow)
        emit RowClicked();
    emit MouseUp();
}

void LogbookView::DoubleClicked(QPoint place) {
    if (indexAt(place).isValid())
        emit PropertiesWanted();
}

// The whole row, also the part that is scrolled out of sight.
QRect LogbookView::RowRect(int row) const {
    return {columnViewportPosition(0), rowViewportPosition(row), horizontalHeader()->length(),
            rowHeight(row)};
}

// Informs a screen reader about those rows that are on the screen; these are few.
void LogbookView::AnnounceRows(const RowRanges& rows) {
    if (rowAt(0) < 0)
        return;
    const int bottom = rowAt(viewport()->height() - 1);
    const auto top = static_cast<std::size_t>(rowAt(0));
    const auto end = static_cast<std::size_t>(bottom < 0 ? model()->rowCount() : bottom + 1);
    for (auto range = std::lower_bound(rows.begin(), rows.end(), top,
                                       [](const RowRange&r, std::size_t row) { return r.Last < row; });
         range != rows.end() && range->First < end; ++range)
        for (std::size_t row = std::max(top, range->First); row <= range->Last && row < end; ++row)
            AnnounceRow(static_cast<int>(row));
}

void LogbookView::AnnounceRow(int row) {
    QAccessibleInterface* const list =
        QAccessible::isActive() ? QAccessible::queryAccessibleInterface(this) : nullptr;
    if (list != nullptr && list->tableInterface() != nullptr) {
        QAccessibleEvent changed(list->tableInterface()->cellAt(row, 0), QAccessible::NameChanged);
        QAccessible::updateAccessibility(&changed);
    }
    emit RowAnnounced(row);
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
