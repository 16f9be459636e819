// SPDX-License-Identifier: MIT
#include "filter/Filter.h"

#include "support/ReadText.h"

#include <gtest/gtest.h>

TEST(ApplyFilters, EveryEntryIsARow) {
    ReadResult result;
    ReadText(Lines({Header("BERR:    a"), Header("RESET:"), Header("BERR:    b")}), result);
    LogbookRows rows;
    EXPECT_TRUE(ApplyFilters(result.Book.Entries, rows));
    EXPECT_EQ(rows, (LogbookRows{{0, 0}, {1, 0}, {2, 0}}));
}

TEST(ApplyFilters, UnknownEventTypeIsAnError) {
    ReadResult result;
    ReadText("no logbook", result);
    LogbookRows rows;
    EXPECT_FALSE(ApplyFilters(result.Book.Entries, rows));
    EXPECT_TRUE(rows.empty());
}

TEST(RowImage, HighlightedIconsStandFourteenPlacesOn) {
    ReadResult result;
    ReadText(Lines({Header("BERR:    a"), Header("RESET:")}), result);
    EXPECT_EQ(RowImage({.Entry = 1, .Highlighted = 0}, result.Book.Entries), 8);
    EXPECT_EQ(RowImage({.Entry = 1, .Highlighted = 1}, result.Book.Entries), 22);
}
