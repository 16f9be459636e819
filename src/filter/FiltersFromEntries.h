// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterStorage.h"
#include "filter/NumberListEditor.h"

#include <cstddef>
#include <cstdint>
#include <vector>

class Registry;

// Filters that collect entries by their numbers: what the user takes out of the list is kept in an exclude
// filter, what he highlights in a highlight filter. They are ordinary stored filters of type 8, so that the
// next filter run and the next start give the same picture, and the user edits them like any other.
//
// The filter that is used is the first active one of type 8 with the action; an inactive one is never
// touched. When there is none, a new one comes to the end of the list. Only the changed filters are written,
// and the number of filters when one is new. Where the default list stands in for a missing or damaged one,
// a new filter is stored behind the default filter, so that everything else stays on the screen.
//
// The settings give no text back that is longer than Registry::LongestText, and a list with such a filter
// would fall back to the default list as a whole. So a number list that has no room in its filter goes on in
// further ones, see filter/WrappedNumberList.h: active filters of type 8 with the action, without name and
// sender, behind the first one. Such a filter goes on with the list only when those before it that do are so
// full that its own beginning would have found no room there, or when it is empty. Any other number filter
// of the action is a list of its own, which is not touched. Where numbers are taken out, what stands behind
// moves up, so that the filters stay full up to the last one that has numbers; those behind it stay, empty.

// One entry at a time; the window changes those of all selected rows at once, with NumberFilters below.
//
// Adds the entry to the filter of the action (see FilterActions), which is written also when it held it
// already. Always true, as the settings report no failure; like the other call it tells whether the row of
// the entry is to change.
bool AddEntryToFilter(Registry& registry, EntryNumber number, std::int16_t action);

// Takes the entry out. True when there is a number filter for the action, also one that does not hold the
// entry: it is then written back as it was.
bool RemoveEntryFromFilter(Registry& registry, EntryNumber number, std::int16_t action);

// The number filters of one action for a change of many entries: gives the same filters as one of the calls
// above for each entry in this order, and writes the settings once. The calls may leave more empty filters,
// where a list was longer in between. The filters are read, and those that go on with the first one's list
// are found, when it is made; nothing else may change the stored filters until it is written.
class NumberFilters {
  public:
    NumberFilters(Registry& registry, std::int16_t action);

    void Add(EntryNumber number);

    // False, and nothing is done, when there is no number filter for the action.
    bool Remove(EntryNumber number);

    // Nothing is written before, and nothing when no entry was added or removed. The first filter is written
    // also when it did not change.
    void Write();

  private:
    void FindPlaces();

    Registry& registry_;
    std::int16_t action_;
    StoredFilters stored_;
    std::vector<std::size_t> places_; // in the list of filters, of those that the number list stands in
    NumberListEditor list_;
    bool used_ = false;
    bool changed_ = false;
};
