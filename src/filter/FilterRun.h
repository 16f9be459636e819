// SPDX-License-Identifier: MIT
#pragma once

#include "base/TextSearcher.h"
#include "filter/FilterDefinition.h"
#include "filter/NumberList.h"
#include "logbook/EntryTable.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// Whether a filter's event type, name and sender match an entry's kind.
bool MatchKind(const FilterDefinition& filter, const EntryKind& kind);

// The filters of a run, prepared for passing through the entries from first to last in batches.
//
// Conditions on the kind of an entry are decided once a kind. Texts and number lists remain: each batch turns
// them into one bit an entry and action, and searches for a text in the data of the whole batch at once.
class FilterRun {
  public:
    static constexpr EntryNumber BatchSize = 4096;

    FilterRun(const EntryTable& entries, std::span<const FilterDefinition> filters);

    // Prepares the entries from `first` up to `end`, at most BatchSize. Batches must follow one another from
    // entry 0 on.
    void BeginBatch(EntryNumber first, EntryNumber end);

    enum class Decision : std::uint8_t {
        Hidden,
        Shown,
        Highlighted, // and shown
        Invalid,     // to be shown, but the list has no name for the event type
    };

    // The decision on an entry of the batch.
    Decision Decide(EntryNumber number) const {
        const std::size_t place = number - batchBegin_;
        unsigned matched = kinds_[entries_.KindNumber(number)];
        for (std::size_t action = 0; action < Actions; ++action)
            matched |= static_cast<unsigned>(matched_[action][place / 64] >> (place % 64) & 1U) << action;
        return Decisions[matched];
    }

  private:
    // The actions of filters as places: of bits in a number, and in arrays.
    static constexpr std::size_t IncludePlace = 0;
    static constexpr std::size_t ExcludePlace = 1;
    static constexpr std::size_t HighlightPlace = 2;
    static constexpr std::size_t Actions = 3;
    static constexpr std::uint8_t NoEventType = 1U << Actions;

    static constexpr std::array<Decision, 2 * NoEventType> MakeDecisions();
    static const std::array<Decision, 2 * NoEventType> Decisions; // by matched actions and NoEventType

    struct TextCondition {
        std::size_t Action;
        TextSearcher Text;
        std::vector<bool> Kinds; // for which the filter is
    };
    struct NumberCondition {
        std::size_t Action;
        std::vector<NumberRange> Ranges;
        std::size_t Next; // the first range that reaches into or beyond the batch
    };

    void MarkText(const TextCondition& condition, EntryNumber first, EntryNumber end);
    void MarkNumbers(NumberCondition& condition, EntryNumber first, EntryNumber end);

    void Mark(std::size_t action, EntryNumber number) {
        const std::size_t place = number - batchBegin_;
        matched_[action][place / 64] |= std::uint64_t{1} << (place % 64);
    }

    const EntryTable& entries_;
    std::vector<std::uint8_t>
        kinds_; // by kind: the actions of filters that the kind alone decides, and NoEventType
    std::vector<TextCondition> texts_;
    std::vector<NumberCondition> numbers_;
    EntryNumber batchBegin_ = 0;
    std::array<std::array<std::uint64_t, BatchSize / 64>, Actions> matched_{}; // by action: a bit an entry
};
