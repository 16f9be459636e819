// SPDX-License-Identifier: MIT
#pragma once

#include "base/TextSearcher.h"
#include "filter/FilterDefinition.h"
#include "filter/NumberList.h"
#include "logbook/EntryTable.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

// Whether a filter's event type, name and sender match an entry's kind.
bool MatchKind(const FilterDefinition& filter, const EntryKind& kind);

// Whether any filter of a group matches an entry, for up to three groups, while the entries are passed
// through from first to last in batches.
//
// Conditions on the kind of an entry are decided once a kind. Texts and number lists remain: each batch turns
// them into one bit an entry and group, and searches for a text in the data of the whole batch at once.
class FilterMatches {
  public:
    static constexpr EntryNumber BatchSize = 4096;
    static constexpr std::size_t Groups = 3;

    explicit FilterMatches(const EntryTable& entries) : entries_(entries), kinds_(entries.Kinds().Count()) {}

    // Adds a filter, active or not, to a group.
    void Add(const FilterDefinition& filter, std::size_t group);

    // Sets what the caller knows of a kind, in the bits from Groups on.
    void Set(std::uint32_t kind, unsigned bits) { kinds_[kind] |= static_cast<std::uint8_t>(bits << Groups); }

    // Prepares the entries from `first` up to `end`, at most BatchSize. Batches must follow one another from
    // entry 0 on.
    void BeginBatch(EntryNumber first, EntryNumber end);

    // The entries of a batch in blocks of so many, from its first one on.
    static constexpr EntryNumber BlockSize = 64;

    // Whether the kinds alone decide on the entries of the block that begins with `number`. Then OfKind has
    // what Of has.
    bool KindsDecide(EntryNumber number) const {
        const std::size_t block = (number - batchBegin_) / BlockSize;
        std::uint64_t matched = 0;
        for (std::size_t group = 0; group < Groups; ++group)
            matched |= matched_[group][block];
        return matched == 0;
    }
    unsigned OfKind(EntryNumber number) const { return kinds_[entries_.KindNumber(number)]; }

    // One bit for each group that matches an entry of the batch, and what was set for its kind.
    unsigned Of(EntryNumber number) const {
        const std::size_t place = number - batchBegin_;
        unsigned matched = OfKind(number);
        for (std::size_t group = 0; group < Groups; ++group)
            matched |= static_cast<unsigned>(matched_[group][place / 64] >> (place % 64) & 1U) << group;
        return matched;
    }

  private:
    struct TextCondition {
        std::size_t Group;
        TextSearcher Text;
        std::vector<bool> Kinds; // for which the filter is
    };
    struct NumberCondition {
        std::size_t Group;
        std::vector<NumberRange> Ranges;
        std::size_t Next; // the first range that reaches into or beyond the batch
    };

    void MarkText(const TextCondition& condition, EntryNumber first, EntryNumber end);
    void MarkNumbers(NumberCondition& condition, EntryNumber first, EntryNumber end);

    void Mark(std::size_t group, EntryNumber number) {
        const std::size_t place = number - batchBegin_;
        matched_[group][place / 64] |= std::uint64_t{1} << (place % 64);
    }

    const EntryTable& entries_;
    std::vector<std::uint8_t>
        kinds_; // by kind: the groups that the kind alone decides, and the caller's bits
    std::vector<TextCondition> texts_;
    std::vector<NumberCondition> numbers_;
    EntryNumber batchBegin_ = 0;
    std::array<std::array<std::uint64_t, BatchSize / 64>, Groups> matched_{}; // by group: a bit an entry
};
