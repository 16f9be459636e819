// SPDX-License-Identifier: MIT
#include "list/RowDelegate.h"

#include "list/LogbookModel.h"
#include "list/QtText.h"
#include "list/ToolTip.h"
#include "rows/LogbookColumns.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    // The list shows the focus on the whole row.
    option->state &= ~QStyle::State_HasFocus;
    // A time stamp that does not fit keeps its clock: the entries near it have the same day.
    if (index.column() == static_cast<int>(LogbookColumn::Time))
        option->textElideMode = Qt::ElideLeft;
    const QVariant image = index.data(LogbookModel::ImageRole);
    if (!image.isValid())
        return;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = {RowIconSize, RowIconSize};
    option->icon = icons_.Icon(image.toInt());
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (!option.state.testFlag(QStyle::State_Selected))
        return;
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    if (cell.icon.isNull())
        return;
    const QStyle* const style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
    const QRect place = style->subElementRect(QStyle::SE_ItemViewItemDecoration, &cell, cell.widget);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(cell.palette.base());
    painter->drawRoundedRect(place.adjusted(-1, -1, 1, 1), 3, 3);
    cell.icon.paint(painter, place);
    painter->restore();
}

QString RowDelegate::displayText(const QVariant& value, const QLocale& locale) const {
    return QStyledItemDelegate::displayText(ShownInCell(value.toString()), locale);
}

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                            const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QRect seen = view->style()->subElementRect(QStyle::SE_ItemViewItemText, &cell, view);
    const int margin = view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, view) + 1;
    const bool cut = cell.fontMetrics.horizontalAdvance(cell.text) > seen.width() - 2 * margin;
    QToolTip::showText(event->globalPos(), cut ? ToolTipOf(cell.text) : QString(), view);
    return true;
}
