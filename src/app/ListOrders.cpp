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

namespace {

// The orders that go from row to row.
struct Step {
    Command Order;
    RowMark Mark;
    SearchDirection Direction;
};
constexpr Step Steps[] = {
    {Command::NextError, RowMark::Error, SearchDirection::Down},
    {Command::PreviousError, RowMark::Error, SearchDirection::Up},
    {Command::NextHighlighted, RowMark::Highlighted, SearchDirection::Down},
    {Command::PreviousHighlighted, RowMark::Highlighted, SearchDirection::Up},
    {Command::NextCommented, RowMark::Commented, SearchDirection::Down},
    {Command::PreviousCommented, RowMark::Commented, SearchDirection::Up},
};

} // namespace

bool ListOrders::Run(Command command, const OrderSubject& subject) {
    for (const Step& step : Steps)
        if (step.Order == command) {
            search_.GoToNext(step.Mark, step.Direction);
            return true;
        }
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
