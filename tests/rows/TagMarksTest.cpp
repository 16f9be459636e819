// SPDX-License-Identifier: MIT
#include "rows/TagMarks.h"

#include "support/EntriesFrom.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The only entry; a row may show it as often as a test likes.
class TagMarksTest : public testing::Test {
  protected:
    TagMarksTest() {
        ParsedEntry parsed;
        parsed.EventType = EventTypes::Error;
        parsed.Image = Images::Error;
        Entries.Append(parsed, CodePage());
    }

    static LogbookRows Rows(std::int32_t count, const std::function<bool(std::int32_t)>& isHighlighted) {
        LogbookRows rows;
        for (std::int32_t row = 1; row <= count; ++row)
            rows.push_back({.Entry = 0, .Highlighted = isHighlighted(row) ? 1U : 0U});
        return rows;
    }

    std::vector<std::int64_t> Slice(const LogbookRows& rows, std::int64_t height, bool done) {
        std::vector<std::int64_t> tops;
        EXPECT_EQ(Marks.NextSlice(Entries, rows, height, tops), done);
        return tops;
    }

    EntryTable Entries;
    TagMarks Marks;
};

constexpr bool Done = true;

} // namespace

TEST(TagScale, RowsHaveTheirPlaces) {
    const TagScale scale{.Rows = 10, .Height = 100};
    EXPECT_EQ(scale.TopOf(1), 0);
    EXPECT_EQ(scale.TopOf(10), 90);
    EXPECT_EQ(scale.MarkHeight(), 10);
    EXPECT_EQ((TagScale{.Rows = 3, .Height = 100}.TopOf(3)), 66);
    EXPECT_EQ((TagScale{.Rows = 3, .Height = 5}.MarkHeight()), 2);
    EXPECT_EQ((TagScale{.Rows = 1000, .Height = 100}.MarkHeight()), 1);
    EXPECT_EQ((TagScale{.Rows = 0x7FFFFFFF, .Height = 2000}.TopOf(0x7FFFFFFF)), 1999);
}

TEST(TagScale, HeightGivesTheNearestRow) {
    const TagScale scale{.Rows = 10, .Height = 100};
    EXPECT_EQ(scale.RowAt(0), 1);
    EXPECT_EQ(scale.RowAt(4.9), 1);
    EXPECT_EQ(scale.RowAt(6), 2);
    EXPECT_EQ(scale.RowAt(90), 10);
    EXPECT_EQ((TagScale{.Rows = 1000, .Height = 100}.RowAt(50)), 501);
}

TEST(TagScale, LowestBandIsTheLastRow) {
    const TagScale scale{.Rows = 10, .Height = 100};
    EXPECT_EQ(scale.RowAt(99), 10);
    EXPECT_EQ(scale.RowAt(1000), 10);
    EXPECT_EQ(scale.RowAt(-5), 1);
}

TEST(TagScale, WithoutRowsOrHeightThereIsNoRow) {
    EXPECT_EQ((TagScale{.Rows = 0, .Height = 100}.RowAt(5)), 0);
    EXPECT_EQ((TagScale{.Rows = 5, .Height = 0}.RowAt(5)), 0);
}

TEST_F(TagMarksTest, EmptyListHasNoneAndIsDone) { EXPECT_THAT(Slice({}, 100, Done), IsEmpty()); }

TEST_F(TagMarksTest, HighlightedRowsHaveMarks) {
    const LogbookRows rows = Rows(10, [](std::int32_t row) { return row == 2 || row == 3 || row == 10; });
    EXPECT_THAT(Slice(rows, 100, Done), ElementsAre(10, 20, 90));
}

TEST_F(TagMarksTest, RowsOnOneLineHaveOneMark) {
    const LogbookRows rows = Rows(100, [](std::int32_t row) { return row >= 51 && row <= 62; });
    EXPECT_THAT(Slice(rows, 10, Done), ElementsAre(5, 6));
}

TEST_F(TagMarksTest, RowWithoutAHighlightedIconHasNone) {
    Entries.Clear();
    ParsedEntry withoutIcon;
    withoutIcon.Image = 0;
    Entries.Append(withoutIcon, CodePage());
    EXPECT_THAT(Slice(Rows(3, [](std::int32_t) { return true; }), 30, Done), IsEmpty());
}

TEST_F(TagMarksTest, SliceEndsAtAHighlightedRowTenThousandRowsOn) {
    const LogbookRows rows = Rows(
        30000, [](std::int32_t row) { return row == 1 || row == 10001 || row == 20002 || row == 30000; });
    EXPECT_THAT(Slice(rows, 300, !Done), ElementsAre(0, 100));
    EXPECT_EQ(Marks.TagViewerNextRow, 10002);
    EXPECT_THAT(Slice(rows, 300, !Done), ElementsAre(200));
    EXPECT_EQ(Marks.TagViewerNextRow, 20003);
    EXPECT_THAT(Slice(rows, 300, Done), ElementsAre(299));
}

TEST_F(TagMarksTest, SliceRunsOnWhereThatRowIsNotHighlighted) {
    const LogbookRows rows = Rows(30000, [](std::int32_t row) { return row != 10001; });
    EXPECT_EQ(Slice(rows, 300, Done).size(), 300U);
}

TEST_F(TagMarksTest, SliceAlsoEndsAtARowWhoseLineHasItsMark) {
    const LogbookRows rows = Rows(20000, [](std::int32_t) { return true; });
    EXPECT_THAT(Slice(rows, 1, !Done), ElementsAre(0));
    EXPECT_EQ(Marks.TagViewerNextRow, 10002);
    EXPECT_THAT(Slice(rows, 1, Done), IsEmpty());
}

TEST_F(TagMarksTest, RestartBeginsAnew) {
    const LogbookRows rows = Rows(20000, [](std::int32_t) { return true; });
    Slice(rows, 1, !Done);
    Marks.Restart();
    EXPECT_EQ(Marks.TagViewerNextRow, 1);
    EXPECT_THAT(Slice(rows, 1, !Done), ElementsAre(0));
}
