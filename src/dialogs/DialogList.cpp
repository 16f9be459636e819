// SPDX-License-Identifier: MIT
#include "dialogs/DialogList.h"

#include "list/QtText.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

class CellDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override {
        return QStyledItemDelegate::displayText(ShownInCell(value.toString()), locale);
    }
};

} // namespace

DialogList::DialogList(int columns, QWidget* parent) : ListOfRows(parent) {
    setColumnCount(columns);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setItemDelegate(new CellDelegate(this));
    setHorizontalScrollMode(ScrollPerPixel);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
}

QTreeWidgetItem* DialogList::SelectedItem() const {
    const std::optional<int> row = SelectedRow();
    return row ? topLevelItem(*row) : nullptr;
}

void DialogList::SelectAndShow(QTreeWidgetItem* row) {
    setCurrentIndex(indexFromItem(row));
    scrollTo(indexFromItem(row));
}

void DialogList::RemoveSelectedRows() {
    int next = -1;
    for (int row = topLevelItemCount() - 1; row >= 0; --row)
        if (topLevelItem(row)->isSelected()) {
            delete takeTopLevelItem(row);
            next = next < 0 ? row : next - 1;
        }
    if (next >= 0 && topLevelItemCount() > 0)
        SelectAndShow(topLevelItem(std::min(next, topLevelItemCount() - 1)));
}

void DialogList::Reorder(std::span<const std::uint32_t> rows) {
    QTreeWidgetItem* const current = currentItem();
    const QList<QTreeWidgetItem*> selected = selectedItems();
    QList<QTreeWidgetItem*> before;
    while (topLevelItemCount() > 0)
        before.append(takeTopLevelItem(0));
    for (const std::uint32_t row : rows)
        addTopLevelItem(before[static_cast<qsizetype>(row)]);
    setCurrentItem(current, 0, QItemSelectionModel::NoUpdate);
    for (QTreeWidgetItem* const row : selected)
        row->setSelected(true);
    if (current != nullptr)
        scrollTo(indexFromItem(current));
}

void DialogList::DoubleClicked(QPoint place) {
    // On a check box it counts as two clicks, which turn the box on and off, and edits nothing.
    if (IsOnCheckBox(place))
        return;
    if (QTreeWidgetItem* const row = itemAt(place); row != nullptr && !row->isSelected())
        SelectAndShow(row);
    emit EditWanted();
}

bool DialogList::IsOnCheckBox(QPoint place) const {
    const QModelIndex cell = indexAt(place);
    if (!cell.data(Qt::CheckStateRole).isValid())
        return false;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(cell);
    option.features |= QStyleOptionViewItem::HasCheckIndicator;
    return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this).contains(place);
}
