// SPDX-License-Identifier: MIT
#include "rows/ListSearch.h"

#include "rows/SearchCandidates.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

// Testing this many rows takes about as long as finding candidates among all entries.
std::int32_t RowsTestedSingly(const EntryTable& entries) {
    return static_cast<std::int32_t>(1000 + entries.Count() / 64);
}

} // namespace

std::int32_t FindInList(const EntryTable& entries, const LogbookRows& rows, std::int32_t start,
                        const SearchState& search, SearchDirection direction) {
    const bool up = direction == SearchDirection::Up;
    const auto count = static_cast<std::int32_t>(rows.size());
    const std::int32_t behind = up ? start - 1 : start + 1;
    const std::int32_t first = up && (start == 0 || behind > count) ? count : behind;
    const std::int32_t toTest = up ? first : count - first + 1;
    const std::int32_t testedSingly = std::min(toTest, RowsTestedSingly(entries));
    CellTest test(search);
    std::vector<bool> candidates;
    for (std::int32_t i = 0; i < toTest; ++i) {
        if (i == testedSingly)
            candidates = SearchCandidates(entries, search);
        const std::int32_t row = up ? first - i : first + i;
        const LogbookRow& tested = rows[static_cast<std::size_t>(row - 1)];
        if ((i < testedSingly || candidates[tested.Entry]) && RowMatches(entries, tested, test))
            return row;
    }
    return -1;
}

LogbookRows MatchingRows(const EntryTable& entries, const LogbookRows& rows, const SearchState& search) {
    const std::vector<bool> candidates = SearchCandidates(entries, search);
    CellTest test(search);
    LogbookRows matching;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(matching), [&](const LogbookRow& row) {
        return candidates[row.Entry] && RowMatches(entries, row, test);
    });
    return matching;
}
