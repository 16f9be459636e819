// SPDX-License-Identifier: MIT
#include "dialogs/frmStringSettings.h"

#include "dialogs/DialogButtons.h"
#include "dialogs/DialogColumns.h"
#include "dialogs/DialogList.h"
#include "dialogs/ListPopup.h"
#include "dialogs/frmFilterString.h"
#include "list/QtText.h"
#include "rows/ListSorting.h"
#include "settings/Registry.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int StringColumn = 0;
constexpr int CommentColumn = 1;
constexpr int ColumnCount = 2;

void Write(const StringFilter& filter, QTreeWidgetItem& row) {
    row.setText(StringColumn, ToQString(filter.FilterString));
    row.setText(CommentColumn, ToQString(filter.Comment));
}

StringFilter Read(const QTreeWidgetItem& row) {
    return {row.text(StringColumn).toStdString(), row.text(CommentColumn).toStdString()};
}

} // namespace

frmStringSettings::frmStringSettings(Registry& registry, Language language,
                                     std::vector<StringFilter>& stringFilters, QWidget* parent)
    : FittedDialog(parent),
      registry_(registry),
      language_(language),
      stringFilters_(stringFilters),
      lblFilterStrings(new QLabel(this)),
      lvFilterStrings(new DialogList(ColumnCount, this)) {
    setObjectName("frmStringSettings");
    setSizeGripEnabled(true);
    lblFilterStrings->setObjectName("lblFilterStrings");
    lblFilterStrings->setBuddy(lvFilterStrings);
    lvFilterStrings->setObjectName("lvFilterStrings");
    lvFilterStrings->header()->setSectionsClickable(true);
    auto* const popup = new ListPopup(language, this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblFilterStrings);
    layout->addWidget(lvFilterStrings);
    layout->addWidget(OkAndCancel(language, *this));

    connect(lvFilterStrings, &DialogList::PopupWanted, popup,
            [popup](const QPoint& position) { popup->popup(position); });
    connect(lvFilterStrings, &DialogList::EditWanted, this, &frmStringSettings::Edit, Qt::QueuedConnection);
    connect(lvFilterStrings->header(), &QHeaderView::sectionClicked, this, &frmStringSettings::SortByColumn);
    connect(popup, &ListPopup::Add, this, &frmStringSettings::Add);
    connect(popup, &ListPopup::Edit, this, &frmStringSettings::Edit);
    connect(popup, &ListPopup::Remove, this, &frmStringSettings::Remove);

    LoadLanguage();
    for (const StringFilter& filter : stringFilters)
        if (!filter.FilterString.empty())
            Write(filter, *new QTreeWidgetItem(lvFilterStrings));
    // The keys begin at this row. It is not selected, because OK gives the string of a row that the person
    // selects.
    if (lvFilterStrings->topLevelItemCount() > 0)
        lvFilterStrings->setCurrentItem(lvFilterStrings->topLevelItem(0), 0, QItemSelectionModel::NoUpdate);
    lvFilterStrings->setFocus();
    resize(sizeHint().expandedTo({420, 300}));
    LoadDialogColumns(registry, SubKeys::StringFilterDialog, StringFilterColumnWidths,
                      *lvFilterStrings->header());
}

void frmStringSettings::LoadLanguage() {
    setWindowTitle(QtText(TextId::StringSettingsTitle, language_));
    lblFilterStrings->setText(QtText(TextId::lvFilterStrings, language_));
    lvFilterStrings->setAccessibleName(QtPlainText(TextId::lvFilterStrings, language_));
    lvFilterStrings->setHeaderLabels(
        {QtText(TextId::StringColumnString, language_), QtText(TextId::StringColumnComment, language_)});
}

void frmStringSettings::accept() {
    if (const QTreeWidgetItem* const row = lvFilterStrings->SelectedItem())
        resultText_ = row->text(StringColumn);
    QDialog::accept();
}

void frmStringSettings::done(int result) {
    SaveDialogColumns(registry_, SubKeys::StringFilterDialog, StringFilterColumnWidths,
                      *lvFilterStrings->header());
    QDialog::done(result);
}

void frmStringSettings::Add() {
    frmFilterString dialog(language_, {}, this);
    dialog.exec();
    if (dialog.ResultText() != "OK")
        return;
    const StringFilter filter = dialog.Filter();
    const std::vector<StringFilter> rows = Rows();
    if (std::find(rows.begin(), rows.end(), filter) != rows.end())
        return;
    auto* const row = new QTreeWidgetItem(lvFilterStrings);
    Write(filter, *row);
    lvFilterStrings->SelectAndShow(row);
    RowsChanged();
}

void frmStringSettings::Edit() {
    QTreeWidgetItem* const row = lvFilterStrings->SelectedItem();
    if (row == nullptr)
        return;
    frmFilterString dialog(language_, Read(*row), this);
    dialog.exec();
    if (dialog.ResultText() != "OK")
        return;
    Write(dialog.Filter(), *row);
    RowsChanged();
}

void frmStringSettings::Remove() {
    lvFilterStrings->RemoveSelectedRows();
    RowsChanged();
}

// The last sorted column inverts the direction; another one keeps it, as in the logbook list.
void frmStringSettings::SortByColumn(int column) {
    if (column == lastSortColumn_)
        direction_ = Opposite(direction_);
    lastSortColumn_ = column;
    std::vector<std::string> cells;
    cells.reserve(static_cast<std::size_t>(lvFilterStrings->topLevelItemCount()));
    for (int row = 0; row < lvFilterStrings->topLevelItemCount(); ++row)
        cells.push_back(lvFilterStrings->topLevelItem(row)->text(column).toStdString());
    lvFilterStrings->Reorder(SortedOrder(cells, SortRule::Text, direction_));
    lvFilterStrings->header()->setSortIndicatorShown(true);
    lvFilterStrings->header()->setSortIndicator(
        column, direction_ == SortDirection::Descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void frmStringSettings::RowsChanged() { stringFilters_ = Rows(); }

std::vector<StringFilter> frmStringSettings::Rows() const {
    std::vector<StringFilter> rows;
    rows.reserve(static_cast<std::size_t>(lvFilterStrings->topLevelItemCount()));
    for (int row = 0; row < lvFilterStrings->topLevelItemCount(); ++row)
        rows.push_back(Read(*lvFilterStrings->topLevelItem(row)));
    return rows;
}
