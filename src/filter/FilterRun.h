// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"
#include "filter/FilterMatches.h"
#include "logbook/EntryTable.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

// The filters of a run, prepared for passing through the entries from first to last in batches.
class FilterRun {
  public:
    static constexpr EntryNumber BatchSize = FilterMatches::BatchSize;

    FilterRun(const EntryTable& entries, std::span<const FilterDefinition> filters);

    // As FilterMatches has it.
    void BeginBatch(EntryNumber first, EntryNumber end) { matches_.BeginBatch(first, end); }

    enum class Decision : std::uint8_t {
        Hidden,
        Shown,
        Highlighted, // and shown
        Invalid,     // to be shown, but the list has no name for the event type
    };

    // The decision on an entry of the batch.
    Decision Decide(EntryNumber number) const { return Decisions[matches_.Of(number)]; }

    // The same, in less time, for the entries of a block on which their kinds decide (as FilterMatches has
    // it).
    static constexpr EntryNumber BlockSize = FilterMatches::BlockSize;
    bool KindsDecide(EntryNumber number) const { return matches_.KindsDecide(number); }
    Decision DecideByKind(EntryNumber number) const { return Decisions[matches_.OfKind(number)]; }

  private:
    // The groups of filters.
    static constexpr std::size_t Include = 0;
    static constexpr std::size_t Exclude = 1;
    static constexpr std::size_t Highlight = 2;
    static constexpr unsigned NoEventType = 1; // set for a kind
    static constexpr std::size_t Cases = std::size_t{2} << FilterMatches::Groups;

    static constexpr std::array<Decision, Cases> MakeDecisions();
    static const std::array<Decision, Cases> Decisions; // by what FilterMatches gives

    FilterMatches matches_;
};
