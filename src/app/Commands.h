// SPDX-License-Identifier: MIT
#pragma once

#include "rows/SortDirection.h"

#include <string>
#include <variant>

// What a person can order in the main window, from whichever menu, button or key.
enum class Command {
    Open,
    ZipLogbook,
    Exit,
    ViewToolbar,
    ViewStatusBar,
    ViewContent,
    Refresh,
    Find,
    FindNext,
    FindPrevious,
    Filters,
    DialogLanguage,
    HelpContents,
    HelpSearch,
    About,
    ToggleHighlighting,
    RemoveFromList,
    Properties,
    EditFilters,
    SortByColumn, // a column of the list, counted from 0
    CopyRows,
    KeepBetween,
    Undo,
    Redo,
    GoToTime,
    NextError,
    PreviousError,
    NextHighlighted,
    PreviousHighlighted,
    NextCommented,
    PreviousCommented,
    SortInOrder, // a ColumnOrder
    FitColumnWidths,
    ExportList,
    TakeOverErrorTexts,
};

// A column of the list, counted from 0, and the direction of its sort.
struct ColumnOrder {
    int Column = 0;
    SortDirection Direction = SortDirection::Ascending;
};

// What an order is about besides the selected rows: a column, an order of it, or for Open the name of a
// source.
using OrderSubject = std::variant<std::monostate, int, std::string, ColumnOrder>;

// True for the commands that read, filter, sort, open or archive, or that change what such a step works with.
// They do nothing while a logbook is being read.
constexpr bool NeedsIdleLogbook(Command command) {
    switch (command) {
    case Command::Exit:
    case Command::ViewToolbar:
    case Command::ViewStatusBar:
    case Command::ViewContent:
    case Command::HelpContents:
    case Command::HelpSearch:
    case Command::About:
        return false;
    default:
        return true;
    }
}
