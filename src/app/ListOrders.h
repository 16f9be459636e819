// SPDX-License-Identifier: MIT
#pragma once

#include "app/Commands.h"
#include "settings/Language.h"

class EntryTable;
class LogbookView;
class WindowSearch;

// The orders that only move in the logbook list, order it or copy from it.
class ListOrders {
  public:
    // All must outlive this object.
    ListOrders(LogbookView& list, const EntryTable& entries, WindowSearch& search)
        : list_(list), entries_(entries), search_(search) {}

    void SetLanguage(Language language) { language_ = language; }

    // Carries out a command; false when it is none of these.
    bool Run(Command command, const OrderSubject& subject);

  private:
    void Sort(int column, std::optional<SortDirection> direction);
    void CopyRows();

    LogbookView& list_;
    const EntryTable& entries_;
    WindowSearch& search_;
    Language language_;
};
