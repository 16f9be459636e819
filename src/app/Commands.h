// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/EntryTable.h"
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
    Overview,
    GoToEntry,      // an EntrySpan of one entry
    SelectSpan,     // an EntrySpan
    NextOccurrence, // the key of an error, as the next three
    PreviousOccurrence,
    HighlightAll,
    RemoveAll,
    ExportList,
    TakeOverErrorTexts,
};

// A column of the list, counted from 0, and the direction of its sort.
struct ColumnOrder {
    int Column = 0;
    SortDirection Direction = SortDirection::Ascending;
};

// Entries of the logbook from one to before another.
struct EntrySpan {
    EntryNumber First = 0;
    EntryNumber End = 0;
};

// What an order is about besides the selected rows: a column, an order of it, entries, the key of an error,
// or for Open the name of a source.
using OrderSubject = std::variant<std::monostate, int, std::string, ColumnOrder, EntrySpan>;

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
    case Command::Overview:
        return false;
    default:
        return true;
    }
}
