// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "logbook/EntrySet.h"
#include "logbook/EntryStamps.h"
#include "rows/RowRanges.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <vector>

// What is to say of the selected rows. From and To are the stamps of the selected entries that the logbook
// recorded first and last; nothing where they cannot be read.
struct SelectionFacts {
    using Duration = std::chrono::milliseconds;

    std::size_t Rows = 0;
    std::size_t Errors = 0; // among them
    std::optional<Stamp> From;
    std::optional<Stamp> To;
    std::optional<Duration> Between; // from From to To; negative when the clock was set back

    // Of a single row: the time since the entry that the logbook recorded before it, and since the error
    // before it, whether or not the list shows these. Negative when the clock was set back.
    std::optional<Duration> SinceEntry;
    std::optional<Duration> SinceError;

    bool operator==(const SelectionFacts&) const = default;
};

// Counts selections of the rows of a list. Remembers sums of 1,024 rows each, so a selection costs about a
// thousandth of a look at its rows, and no more than 2,048 looks a range.
class SelectionCounter {
  public:
    // Looks at each row once. The table, the rows and the errors, which are a set of the table's entries,
    // must outlive this and stay as they are.
    SelectionCounter(const EntryTable& entries, const LogbookRows& rows, const EntrySet& errors);

    SelectionFacts FactsOf(const RowRanges& selected) const;

  private:
    static constexpr std::size_t Step = 1024;

    struct Sum {
        EntryNumber First = MostEntries; // the lowest entry number
        EntryNumber Last = 0;
        std::size_t Errors = 0;

        void Add(const Sum& other);
    };

    Sum SumOf(const LogbookRow& row) const;
    Sum SumOf(const RowRange& range) const;

    const LogbookRows& rows_;
    const EntrySet& errors_;
    EntryStamps stamps_;
    std::vector<Sum> sums_; // of Step rows each
};
