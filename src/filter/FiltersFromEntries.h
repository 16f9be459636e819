// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterStorage.h"
#include "filter/NumberListEditor.h"

#include <cstddef>
#include <cstdint>
#include <vector>

class Registry;

// Filters that collect entries by their numbers: an exclude filter keeps the entries that the user removes
// from the list, a highlight filter those that he highlights. They are ordinary stored filters of type 8, so
// that the next filter run and the next start give the same picture, and the user can edit them like any
// other.
//
// They use the first active filter of type 8 with the action and never touch an inactive one. When there is
// none, they add a new one at the end of the list. They write only the changed filters, and the number of
// filters when one is new. When the default list replaces a missing or damaged one, they store a new filter
// behind the default filter, so that everything else stays on the screen.
//
// The settings give no text back that is longer than Registry::LongestText; with such a filter the whole list
// would fall back to the default list. So a number list that does not fit into its filter continues in
// further ones (filter/WrappedNumberList.h): active filters of type 8 with the action, without name and
// sender, behind the first one. Such a filter continues the list only when it is empty, or when the filters
// before it are so full that its beginning would not have fitted there. Any other number filter of the action
// is a list of its own and is not touched. When numbers are removed, the numbers behind them move up, so that
// the filters stay full up to the last one with numbers; the filters behind it stay, empty.

// These two change one entry. For the entries of all selected rows the window uses NumberFilters.
//
// Adds the entry to the filter of the action (see FilterActions). Writes the filter also when it already held
// the entry. Always true, because the settings report no failure.
bool AddEntryToFilter(Registry& registry, EntryNumber number, std::int16_t action);

// Removes the entry from the filter. True when there is a number filter for the action; one that does not
// hold the entry is written back as it was.
bool RemoveEntryFromFilter(Registry& registry, EntryNumber number, std::int16_t action);

// Changes the number filters of one action for many entries: gives the same filters as one of the calls above
// for each entry in this order, but writes the settings once. Those calls may leave more empty filters if a
// list was longer for a while. The constructor reads the filters; nothing else may change the stored
// filters until Write.
class NumberFilters {
  public:
    NumberFilters(Registry& registry, std::int16_t action);

    void Add(EntryNumber number);

    // False, and nothing is done, when there is no number filter for the action.
    bool Remove(EntryNumber number);

    // Writes the filters, or nothing when no entry was added or removed. Writes the first filter also when it
    // did not change. Nothing is written before.
    void Write();

  private:
    void FindPlaces();

    Registry& registry_;
    std::int16_t action_;
    StoredFilters stored_;
    std::vector<std::size_t> places_; // in the list of filters, of those that hold the number list
    NumberListEditor list_;
    bool used_ = false;
    bool changed_ = false;
};
