// SPDX-License-Identifier: MIT
#pragma once

#include "rows/NextRow.h"
#include "rows/RowMatches.h"
#include "settings/Language.h"

#include <QObject>

#include <cstddef>
#include <cstdint>
#include <optional>

class LogbookView;
class QWidget;
class UserInterface;

// Find, find next and find previous in the logbook list, and steps from one marked row to the next. Keeps the
// last search as long as it lives.
//
// A search begins beside the selected row. If it reaches the end of the list, a message says so, and the
// selection stays. A hit is selected alone and scrolled into view with three rows beyond it.
class WindowSearch : public QObject {
    Q_OBJECT

  public:
    // The list, the entries and the user outlive the search; the window owns the dialog.
    WindowSearch(LogbookView& list, const EntryTable& entries, UserInterface& user, QWidget& window);

    void SetLanguage(Language language) { language_ = language; }

    // Asks what to find, and finds it.
    void Find();

    // Finds the same again, in the direction of the dialog or against it; nothing without a text.
    void FindNext();
    void FindPrevious();

    // Selects the nearest row with a mark in this direction.
    void GoToNext(RowMark mark, SearchDirection direction);

    // Asks for a time, and selects the first row at or after it; where the list is not in the order of time,
    // the nearest one. Says when the filters hide a nearer entry.
    void GoToTime();

    // True when there is something to find again.
    bool HasText() const { return !search_.SearchText.empty(); }

    // Scrolls so that the third row beyond a row is seen, counted from 1 and in this direction, and the
    // row itself.
    void EnsureVisible(std::int32_t row, SearchDirection direction);

    // Shows a row as a hit; counted from 0.
    void ShowRow(std::size_t row) { ShowFound(row, SearchDirection::Down); }

    // Shows a row as a hit, or says that the end in this direction was reached.
    void ShowFound(std::optional<std::size_t> row, SearchDirection direction);

    // Says that filters hide this entry.
    void TellHidden(EntryNumber entry);

  signals:
    // A hit has been selected and is in view. Counted from 0.
    void RowFound(int row);

  private:
    void FindFromSelection(SearchDirection direction);

    LogbookView& list_;
    const EntryTable& entries_;
    UserInterface& user_;
    QWidget& window_;
    Language language_;
    SearchState search_;
};
