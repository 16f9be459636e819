// SPDX-License-Identifier: MIT
#pragma once

#include "list/RowIcons.h"

#include <QStyledItemDelegate>

// Paints the cells of the logbook list: the row's icon before its first cell, and texts that are too long for
// their column as a tool tip, in full but for those of thousands of characters.
class RowDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    explicit RowDelegate(QObject* parent = nullptr) : QStyledItemDelegate(parent) {}

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    // The icon of a selected row stands on the colour of the unselected ones, on which it can be made out.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    QString displayText(const QVariant& value, const QLocale& locale) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  private:
    RowIcons icons_;
};
