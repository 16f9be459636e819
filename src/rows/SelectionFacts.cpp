// SPDX-License-Identifier: MIT
#include "rows/SelectionFacts.h"

#include <algorithm>

namespace {

std::optional<SelectionFacts::Duration> Between(const std::optional<Stamp>& from,
                                                const std::optional<Stamp>& to) {
    return from && to ? std::optional(TimeBetween(*from, *to)) : std::nullopt;
}

} // namespace

void SelectionCounter::Sum::Add(const Sum& other) {
    First = std::min(First, other.First);
    Last = std::max(Last, other.Last);
    Errors += other.Errors;
}

SelectionCounter::SelectionCounter(const EntryTable& entries, const LogbookRows& rows, const EntrySet& errors)
    : rows_(rows), errors_(errors), stamps_(entries) {
    sums_.resize((rows.size() + Step - 1) / Step);
    for (std::size_t row = 0; row < rows.size(); ++row)
        sums_[row / Step].Add(SumOf(rows[row]));
}

SelectionCounter::Sum SelectionCounter::SumOf(const LogbookRow& row) const {
    return {row.Entry, row.Entry, errors_.Contains(row.Entry) ? std::size_t{1} : std::size_t{0}};
}

SelectionCounter::Sum SelectionCounter::SumOf(const RowRange& range) const {
    Sum sum;
    for (std::size_t row = range.First; row <= range.Last;) {
        if (row % Step == 0 && row + Step <= range.Last + 1) {
            sum.Add(sums_[row / Step]);
            row += Step;
        } else {
            sum.Add(SumOf(rows_[row]));
            ++row;
        }
    }
    return sum;
}

SelectionFacts SelectionCounter::FactsOf(const RowRanges& selected) const {
    SelectionFacts facts;
    Sum sum;
    for (const RowRange& range : selected) {
        facts.Rows += range.Last - range.First + 1;
        sum.Add(SumOf(range));
    }
    if (facts.Rows == 0)
        return facts;
    facts.Errors = sum.Errors;
    facts.From = stamps_[sum.First];
    facts.To = stamps_[sum.Last];
    facts.Between = Between(facts.From, facts.To);
    if (facts.Rows > 1)
        return facts;
    if (sum.First > 0)
        facts.SinceEntry = Between(stamps_[sum.First - 1], facts.From);
    if (const std::optional<EntryNumber> error = errors_.LastBefore(sum.First))
        facts.SinceError = Between(stamps_[*error], facts.From);
    return facts;
}
