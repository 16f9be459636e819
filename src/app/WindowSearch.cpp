// SPDX-License-Identifier: MIT
#include "app/WindowSearch.h"

#include "app/WaitPointer.h"
#include "dialogs/frmGoToTime.h"
#include "dialogs/frmSearchForString.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "rows/ListSearch.h"
#include "rows/WantedTime.h"
#include "settings/Texts.h"
#include "settings/UserInterface.h"

#include <algorithm>
#include <string>
#include <utility>

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
    std::int32_t found = -1; // counted from 1
    {
        const WaitPointer wait;
        found =
            FindInList(entries_, list_.Logbook()->Rows(), selected ? *selected + 1 : 0, search_, direction);
    }
    ShowFound(found < 1 ? std::nullopt : std::optional(static_cast<std::size_t>(found - 1)), direction);
}

void WindowSearch::GoToNext(RowMark mark, SearchDirection direction) {
    std::optional<std::size_t> start;
    if (const std::optional<int> selected = list_.SelectedRow())
        start = static_cast<std::size_t>(*selected);
    std::optional<std::size_t> found;
    {
        const WaitPointer wait;
        found = NextRow(entries_, list_.Logbook()->Rows(), start, mark, direction);
    }
    ShowFound(found, direction);
}

void WindowSearch::GoToTime() {
    const LogbookRows& rows = list_.Logbook()->Rows();
    std::optional<std::chrono::sys_days> day;
    if (const std::optional<int> selected = list_.SelectedRow())
        if (const std::optional<Stamp> stamp =
                ReadStamp(entries_.Time(rows[static_cast<std::size_t>(*selected)].Entry)))
            day = std::chrono::floor<std::chrono::days>(stamp->Moment);
    std::vector<LogbookDay> days;
    {
        const WaitPointer wait;
        days = DaysOf(entries_);
    }
    frmGoToTime dialog(language_, std::move(days), day, &window_);
    dialog.exec();
    const std::optional<Stamp> wanted = dialog.Time();
    if (!wanted)
        return;
    TimeFound found;
    {
        const WaitPointer wait;
        found = FindTime(entries_, rows, *wanted, list_.Logbook()->LiesInTime());
    }
    if (found.Row || !found.HiddenEntry)
        ShowFound(found.Row, SearchDirection::Down);
    if (found.HiddenEntry)
        TellHidden(*found.HiddenEntry);
}

void WindowSearch::TellHidden(EntryNumber entry) {
    user_.ShowMessage(std::string(Text(TextId::GoToTimeHidden, language_)) + entries_.Time(entry),
                      UserInterface::MessageIcon::None);
}

void WindowSearch::ShowFound(std::optional<std::size_t> found, SearchDirection direction) {
    if (!found) {
        user_.ShowMessage(
            Text(direction == SearchDirection::Up ? TextId::BeginReached : TextId::EndReached, language_),
            UserInterface::MessageIcon::None);
        return;
    }
    const int row = static_cast<int>(*found);
    list_.SelectRanges({{*found, *found}}, row);
    EnsureVisible(row + 1, direction);
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
