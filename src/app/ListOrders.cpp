// SPDX-License-Identifier: MIT
#include "app/ListOrders.h"

#include "app/WaitPointer.h"
#include "app/WindowSearch.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "list/QtText.h"
#include "rows/RowsAsText.h"

#include <QApplication>
#include <QClipboard>

bool ListOrders::Run(Command command, const OrderSubject& subject) {
    switch (command) {
    case Command::Find:
        search_.Find();
        return true;
    case Command::FindNext:
        search_.FindNext();
        return true;
    case Command::FindPrevious:
        search_.FindPrevious();
        return true;
    case Command::GoToTime:
        search_.GoToTime();
        return true;
    case Command::NextError:
        search_.GoToNext(RowMark::Error, SearchDirection::Down);
        return true;
    case Command::PreviousError:
        search_.GoToNext(RowMark::Error, SearchDirection::Up);
        return true;
    case Command::NextHighlighted:
        search_.GoToNext(RowMark::Highlighted, SearchDirection::Down);
        return true;
    case Command::PreviousHighlighted:
        search_.GoToNext(RowMark::Highlighted, SearchDirection::Up);
        return true;
    case Command::NextCommented:
        search_.GoToNext(RowMark::Commented, SearchDirection::Down);
        return true;
    case Command::PreviousCommented:
        search_.GoToNext(RowMark::Commented, SearchDirection::Up);
        return true;
    case Command::SortByColumn:
        Sort(std::get<int>(subject), {});
        return true;
    case Command::SortInOrder:
        Sort(std::get<ColumnOrder>(subject).Column, std::get<ColumnOrder>(subject).Direction);
        return true;
    case Command::FitColumnWidths:
        list_.FitColumnWidths();
        return true;
    case Command::CopyRows:
        CopyRows();
        return true;
    default:
        return false;
    }
}

// The selected row stays in view.
void ListOrders::Sort(int column, std::optional<SortDirection> direction) {
    const WaitPointer wait;
    list_.SortByColumn(column, direction);
    if (const std::optional<int> row = list_.SelectedRow())
        list_.scrollTo(list_.model()->index(*row, 0));
}

void ListOrders::CopyRows() {
    const RowRanges ranges = list_.SelectedRanges();
    if (ranges.empty())
        return;
    const WaitPointer wait;
    QApplication::clipboard()->setText(
        ToQString(RowsAsText(entries_, list_.Logbook()->Rows(), ranges, language_)));
}
