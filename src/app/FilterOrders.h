// SPDX-License-Identifier: MIT
#pragma once

#include "app/Commands.h"
#include "filter/FilterHistory.h"
#include "rows/RowRanges.h"
#include "settings/Language.h"

#include <functional>

class LogbookView;
class MainMenus;
class Registry;
class UserInterface;

// The orders that change the stored filters by the selected rows of the list, and those that take such
// changes back. The menu items Undo and Redo say what they are about.
class FilterOrders {
  public:
    struct Events {
        std::function<void()> FiltersChanged;        // the list must be filtered anew
        std::function<void()> RowsRemoved;           // the list shows it already
        FilterHistory::Changed StoredFiltersChanged; // before the two others
    };

    // All must outlive this object.
    FilterOrders(LogbookView& list, Registry& registry, MainMenus& menus, UserInterface& user, Events events);

    void SetLanguage(Language language);

    // Forgets what could be taken back.
    void Clear();

    // Carries out a command; false when it is none of these.
    bool Run(Command command);

    // Remove these rows; make plain ones of them highlighted and highlighted ones plain.
    void Remove(const RowRanges& rows);
    void ToggleHighlighting(const RowRanges& rows);

    // Remove or highlight entries, also those that filters hide, as one step. `entries` are rows for each of
    // them, plain ones for ToggleHighlighting; `shown` are the rows of the list that are among them. The
    // selection stays on its row.
    void RemoveEntries(const LogbookRows& entries, const RowRanges& shown);
    void HighlightEntries(const LogbookRows& entries, const RowRanges& shown);

  private:
    void KeepBetween();
    void TellOutcome(FilterHistory::Outcome outcome);
    void OfferUndo();

    LogbookView& list_;
    Registry& registry_;
    MainMenus& menus_;
    UserInterface& user_;
    Events events_;
    FilterHistory history_;
    Language language_;
};
