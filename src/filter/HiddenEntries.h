// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"
#include "logbook/EntryTable.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

// How many entries the list does not show, by cause. Each such entry has exactly one cause, so that the
// counts add up to all entries less the shown ones.
//
// As in a filter run, first come the filters that add entries to the list:
// - NotAdded: no filter that adds entries is active.
// - NotNumber, NotType, NotName, NotText: no filter that adds entries matches the entry. The filter counts
// that
//   comes nearest: one that lacks only its text before one that also has another name or sender, this before
//   one of another event type, and a list of numbers last.
//
// Then come, for entries that a filter adds, the filters that remove them. The first that matches counts, in
// this order:
// - ByType: a filter by event type alone; also one that removes all entries.
// - ByName: a filter with a name or sender, and no text.
// - ByText: a filter with a text.
// - ByNumber: a list of numbers. So this is the number of entries that would come back without such lists.
//
// NotReached: entries from the first one on that ended the run because of its event type.
struct HiddenEntries {
    enum Cause : std::uint8_t {
        ByNumber,
        ByText,
        ByName,
        ByType,
        NotText,
        NotName,
        NotType,
        NotNumber,
        NotAdded,
        NotReached,
    };
    static constexpr std::size_t Causes = NotReached + 1;

    std::array<EntryNumber, Causes> Counts{};

    EntryNumber Sum() const;
    bool operator==(const HiddenEntries&) const = default;
};

// What a filter run hides. Costs less than the run, and no memory for each entry.
HiddenEntries CountHidden(const EntryTable& entries, std::span<const FilterDefinition> filters);

// "2 removed by number, 1,204 not of the chosen types"; "" when nothing is hidden.
std::string HiddenText(const HiddenEntries& hidden, Language language);
