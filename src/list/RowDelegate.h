// SPDX-License-Identifier: MIT
#pragma once

#include "list/RowIcons.h"

#include <QStyledItemDelegate>

// Paints the cells of the logbook list, with the row's icon before its first cell. Shows a text that is too
// long for its column in a tool tip, in full unless it has thousands of characters.
class RowDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    explicit RowDelegate(QObject* parent = nullptr) : QStyledItemDelegate(parent) {}

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    // The icon of a selected row has the background of unselected rows, on which it is easy to see.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    QString displayText(const QVariant& value, const QLocale& locale) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  private:
    RowIcons icons_;
};
