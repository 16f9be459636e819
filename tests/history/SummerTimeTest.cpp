// SPDX-License-Identifier: MIT
#include "history/SummerTime.h"

#include <gtest/gtest.h>

namespace {

bool MayEnd(std::string_view before, std::string_view after) {
    return MayEndSummerTime(ReadStamp(before).value(), ReadStamp(after).value());
}

} // namespace

TEST(SummerTime, EndsInTheNightOfTheLastSundayOfOctober) {
    EXPECT_TRUE(MayEnd("31.10.2010 02:59:59", "31.10.2010 01:59:59"));
    EXPECT_TRUE(MayEnd("31.10.2010 03:00:00", "31.10.2010 02:00:00.500"));
    EXPECT_TRUE(MayEnd("31.10.2010 02:59:50", "31.10.2010 02:05:10"));
    EXPECT_FALSE(MayEnd("24.10.2010 03:00:00", "24.10.2010 02:00:00"));
    EXPECT_FALSE(MayEnd("31.10.2010 13:00:00", "31.10.2010 12:00:00"));
    EXPECT_FALSE(MayEnd("31.10.2011 03:00:00", "31.10.2011 02:00:00"));
    EXPECT_TRUE(MayEnd("30.10.2011 03:00:00", "30.10.2011 02:00:00"));
}

TEST(SummerTime, GoesBackByOneHour) {
    EXPECT_FALSE(MayEnd("31.10.2010 03:00:00", "31.10.2010 01:59:59"));
    EXPECT_FALSE(MayEnd("31.10.2010 03:00:00", "31.10.2010 02:10:01"));
    EXPECT_FALSE(MayEnd("31.10.2010 02:00:00", "31.10.2010 03:00:00"));
}
