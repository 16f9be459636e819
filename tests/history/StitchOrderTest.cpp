// SPDX-License-Identifier: MIT
#include "history/StitchOrder.h"
#include "history/Stitches.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Reason = CommonLines::Reason;

} // namespace

TEST(StitchOrder, AgeIsFoundOut) {
    std::vector<std::string> exports{StampedLines(0, 40), StampedLines(20, 60).substr(5),
                                     StampedLines(45, 80), StampedLines(60, 100)};
    const std::string whole = StampedLines(0, 100);
    std::sort(exports.begin(), exports.end());
    do {
        const Stitches stitches(exports);
        EXPECT_EQ(stitches.Log(), whole);
        EXPECT_EQ(stitches.Plan().Pairs.size(), 3U);
        EXPECT_TRUE(stitches.Plan().Duplicates.empty());
    } while (std::next_permutation(exports.begin(), exports.end()));
}

TEST(StitchOrder, DuplicatesAddNothing) {
    const std::vector<std::string> exports{StampedLines(20, 60), StampedLines(0, 40), StampedLines(20, 60),
                                           StampedLines(25, 38).substr(3), StampedLines(0, 40)};
    const Stitches stitches(exports);
    EXPECT_EQ(stitches.Log(), StampedLines(0, 60));
    EXPECT_EQ(stitches.Plan().Order, (std::vector<std::size_t>{1, 0}));
    ASSERT_EQ(stitches.Plan().Duplicates.size(), 3U);
    EXPECT_EQ(stitches.Plan().Duplicates[0].Export, 2U);
    EXPECT_EQ(stitches.Plan().Duplicates[0].Of, 0U);
    EXPECT_EQ(stitches.Plan().Duplicates[1].Export, 4U);
    EXPECT_EQ(stitches.Plan().Duplicates[1].Of, 1U);
    EXPECT_EQ(stitches.Plan().Duplicates[2].Export, 3U);
}

TEST(StitchOrder, OnlyDuplicatesAreRefused) {
    for (const std::vector<std::string>& exports : {std::vector<std::string>{"a", "a"},
                                                    {StampedLines(0, 40), StampedLines(5, 30)},
                                                    {StampedLines(0, 40)}}) {
        const Stitches stitches(exports);
        ASSERT_TRUE(stitches.Plan().Refused);
        EXPECT_TRUE(stitches.Plan().Refused->NothingAdds);
        EXPECT_EQ(stitches.Plan().Duplicates.size(), exports.size() - 1);
    }
}

// One that is the beginning of another lies in it and is continued by it, both at the same place.
TEST(StitchOrder, BeginningOfAnotherIsADuplicate) {
    const Stitches stitches({StampedLines(0, 40), StampedLines(0, 20), StampedLines(30, 60)});
    EXPECT_EQ(stitches.Log(), StampedLines(0, 60));
    ASSERT_EQ(stitches.Plan().Duplicates.size(), 1U);
    EXPECT_EQ(stitches.Plan().Duplicates[0].Export, 1U);
}

// While the clock stands still, lines that lie in another export may as well come before it.
TEST(StitchOrder, EqualLinesInAnotherExportMayBeOthers) {
    std::string same;
    for (int i = 0; i < 16; ++i)
        same += StampedLines(0, 1);
    const std::size_t line = same.size() / 16;
    const std::string after = StampedLines(1, 20);
    const Stitches stitches(
        {same.substr(5, 14 * line + 15), same.substr(2 * line + 3) + after, after + StampedLines(20, 30)});
    ASSERT_TRUE(stitches.Plan().Refused);
    EXPECT_EQ(stitches.Plan().Refused->Why, Reason::SeveralPlaces);
    EXPECT_TRUE(stitches.Plan().Order.empty());
}

TEST(StitchOrder, HoleIsRefusedWithTheTwoExports) {
    const Stitches stitches({StampedLines(0, 40), StampedLines(50, 90), StampedLines(30, 45)});
    ASSERT_TRUE(stitches.Plan().Refused);
    EXPECT_EQ(stitches.Plan().Refused->Why, Reason::NoneInCommon);
    EXPECT_EQ(std::max(stitches.Plan().Refused->First, stitches.Plan().Refused->Second), 1U);

    const Stitches few({StampedLines(0, 40), StampedLines(40, 90), StampedLines(28, 45)});
    ASSERT_TRUE(few.Plan().Refused);
    EXPECT_EQ(few.Plan().Refused->Why, Reason::TooFew);
    EXPECT_EQ(few.Plan().Refused->Lines, 4U);
    EXPECT_TRUE(few.Plan().Order.empty());
}

TEST(StitchOrder, TwoThatContinueTheSameOneDifferentlyAreRefused) {
    const std::string common = StampedLines(0, 40);
    const Stitches stitches(
        {common, StampedLines(20, 40) + StampedLines(50, 60), StampedLines(22, 40) + StampedLines(70, 80)});
    ASSERT_TRUE(stitches.Plan().Refused);
    EXPECT_EQ(stitches.Plan().Refused->Why, Reason::NoneInCommon);
}

TEST(StitchOrder, TwoThatContinueEachOtherAreRefused) {
    const std::string a = StampedLines(0, 20);
    const std::string b = StampedLines(100, 120);
    const Stitches stitches({a + b, b + a});
    ASSERT_TRUE(stitches.Plan().Refused);
    EXPECT_EQ(stitches.Plan().Refused->Why, Reason::SeveralPlaces);
}

TEST(StitchOrder, NewerThatMayAlsoBeOlderIsRefused) {
    // The second export continues the first one, but the first one may continue the second one, too, at two
    // places.
    const std::string twice = StampedLines(0, 12) + StampedLines(0, 12);
    const std::string between = StampedLines(20, 40);
    const Stitches stitches({twice + between, between + twice});
    ASSERT_TRUE(stitches.Plan().Refused);
    EXPECT_EQ(stitches.Plan().Refused->Why, Reason::SeveralPlaces);
}

TEST(StitchOrder, TwoWaysToOneExportMustLeadToTheSameLine) {
    // The lines from 24 on occur twice: the newest export follows the oldest one at once, and the one between
    // them later.
    const Stitches stitches({StampedLines(0, 40),
                             StampedLines(20, 40) + StampedLines(50, 60) + StampedLines(24, 40),
                             StampedLines(24, 40) + StampedLines(70, 80)});
    ASSERT_TRUE(stitches.Plan().Refused);
    EXPECT_EQ(stitches.Plan().Refused->Why, Reason::SeveralPlaces);
}

TEST(StitchOrder, NewestKeepsItsUnfinishedLine) {
    const Stitches stitches({StampedLines(0, 40) + "BERR: un", StampedLines(20, 50) + "ERR: unfinished"});
    EXPECT_EQ(stitches.Log(), StampedLines(0, 50) + "ERR: unfinished");
}
