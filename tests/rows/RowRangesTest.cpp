// SPDX-License-Identifier: MIT
#include "rows/RowRanges.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Rows that show these entries.
LogbookRows RowsOf(const std::vector<EntryNumber>& entries) {
    LogbookRows rows;
    for (const EntryNumber entry : entries)
        rows.push_back({entry & MostEntries, 0});
    return rows;
}

std::vector<EntryNumber> EntriesOf(const LogbookRows& rows) {
    std::vector<EntryNumber> entries;
    for (const LogbookRow& row : rows)
        entries.push_back(row.Entry);
    return entries;
}

TEST(RowRangesTest, RangesThatTouchAreJoined) {
    EXPECT_THAT(Joined({{7, 9}, {0, 0}, {1, 3}, {2, 2}, {5, 5}}),
                ElementsAre(RowRange{0, 3}, RowRange{5, 5}, RowRange{7, 9}));
    EXPECT_THAT(Joined({}), IsEmpty());
    EXPECT_EQ(RowCount({{0, 3}, {5, 5}}), 5U);
}

TEST(RowRangesTest, SelectionFollowsItsEntries) {
    const SelectedEntries selected(RowsOf({4, 8, 15, 16}), {{0, 1}, {3, 3}});
    EXPECT_THAT(selected.RangesIn(RowsOf({16, 15, 8, 4}), 10), ElementsAre(RowRange{0, 0}, RowRange{2, 3}));
    EXPECT_THAT(selected.RangesIn(RowsOf({15, 99}), 10), IsEmpty());
    EXPECT_THAT(selected.RangesIn({}, 10), IsEmpty());
}

TEST(RowRangesTest, EverythingStaysEverything) {
    const SelectedEntries selected(RowsOf({1, 2, 3}), {{0, 2}});
    EXPECT_THAT(selected.RangesIn(RowsOf({3, 1, 2}), 1), ElementsAre(RowRange{0, 2}));
    const SelectedEntries nothing(RowsOf({1, 2, 3}), {});
    EXPECT_THAT(nothing.RangesIn(RowsOf({3, 1, 2}), 1), IsEmpty());
}

TEST(RowRangesTest, TooManyRangesAreNone) {
    const SelectedEntries selected(RowsOf({1, 2, 3, 4}), {{0, 1}});
    EXPECT_THAT(selected.RangesIn(RowsOf({1, 3, 2, 4}), 2), ElementsAre(RowRange{0, 0}, RowRange{2, 2}));
    EXPECT_THAT(selected.RangesIn(RowsOf({1, 3, 2, 4}), 1), IsEmpty());
}

TEST(RowRangesTest, RowsAreTakenOutAndTheOthersKeepTheirOrder) {
    const auto without = [](const RowRanges& ranges) {
        LogbookRows rows = RowsOf({10, 11, 12, 13, 14});
        RemoveFromList(rows, ranges);
        return EntriesOf(rows);
    };
    EXPECT_THAT(without({}), ElementsAre(10, 11, 12, 13, 14));
    EXPECT_THAT(without({{0, 0}, {2, 3}}), ElementsAre(11, 14));
    EXPECT_THAT(without({{4, 4}}), ElementsAre(10, 11, 12, 13));
    EXPECT_THAT(without({{0, 4}}), IsEmpty());
}

} // namespace
