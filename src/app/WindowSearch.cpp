// SPDX-License-Identifier: MIT
#include "app/WindowSearch.h"

#include "app/WaitPointer.h"
#include "dialogs/frmSearchForString.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "rows/ListSearch.h"
#include "settings/Texts.h"
#include "settings/UserInterface.h"

#include <algorithm>

WindowSearch::WindowSearch(LogbookView& list, const EntryTable& entries, UserInterface& user, QWidget& window)
    : QObject(&window), list_(list), entries_(entries), user_(user), window_(window) {}

void WindowSearch::Find() {
    frmSearchForString dialog(search_, language_, &window_);
    dialog.exec();
    const std::optional<SearchState> search = dialog.Search();
    if (!search)
        return;
    search_ = *search;
    FindFromSelection(DirectionOf(search_));
}

void WindowSearch::FindNext() {
    if (HasText())
        FindFromSelection(DirectionOf(search_));
}

void WindowSearch::FindPrevious() {
    if (HasText())
        FindFromSelection(Opposite(DirectionOf(search_)));
}

void WindowSearch::FindFromSelection(SearchDirection direction) {
    const std::optional<int> selected = list_.SelectedRow();
    {
        const WaitPointer wait;
        FoundRow =
            FindInList(entries_, list_.Logbook()->Rows(), selected ? *selected + 1 : 0, search_, direction);
    }
    if (FoundRow < 0) {
        user_.ShowMessage(
            Text(direction == SearchDirection::Up ? TextId::BeginReached : TextId::EndReached, language_),
            UserInterface::MessageIcon::None);
        return;
    }
    const int row = FoundRow - 1;
    list_.SelectRanges({{static_cast<std::size_t>(row), static_cast<std::size_t>(row)}}, row);
    EnsureVisible(FoundRow, direction);
    emit RowFound(row);
}

void WindowSearch::EnsureVisible(std::int32_t row, SearchDirection direction) {
    constexpr std::int32_t Context = 3;
    const std::int32_t target = direction == SearchDirection::Up
                                    ? std::max(row - Context, 1)
                                    : std::min(row + Context, list_.model()->rowCount());
    for (const std::int32_t shown : {target, row})
        list_.scrollTo(list_.model()->index(shown - 1, 0));
}
