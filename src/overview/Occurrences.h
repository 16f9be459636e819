// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "history/ErrorStatistics.h"
#include "logbook/EntrySet.h"
#include "rows/RowMatches.h"

#include <cstddef>
#include <optional>
#include <string>

// The rows of a list whose entries are one error or warning, by its key.
//
// Each costs a look at every row that it passes, and a key for each error or warning among them.
class Occurrences {
  public:
    // All must outlive this.
    Occurrences(const EntryTable& entries, const ErrorKeys& keys, std::string key)
        : entries_(entries), keys_(keys), key_(std::move(key)) {}

    // True for an error or warning with this key.
    bool Is(EntryNumber entry) const;

    // The nearest such row behind row `start` in this direction, without row `start` itself; without a start
    // from the first row down or from the last one up. Rows are counted from 0.
    std::optional<std::size_t> Next(const LogbookRows& rows, std::optional<std::size_t> start,
                                    SearchDirection direction) const;

    // All such entries, also those without a row.
    EntrySet All() const;

  private:
    const EntryTable& entries_;
    const ErrorKeys& keys_;
    std::string key_;
    mutable std::string made_; // its room is used again
};
