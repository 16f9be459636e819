// SPDX-License-Identifier: MIT
#include "settings/NumberText.h"

#include <gtest/gtest.h>

TEST(NumberText, DigitsStandInGroupsOfThree) {
    EXPECT_EQ(GroupedText(0, {}), "0");
    EXPECT_EQ(GroupedText(999, {}), "999");
    EXPECT_EQ(GroupedText(1204, {}), "1,204");
    EXPECT_EQ(GroupedText(123456, {}), "123,456");
    EXPECT_EQ(GroupedText(2147483647, {}), "2,147,483,647");
}

TEST(NumberText, GermanHasPoints) {
    EXPECT_EQ(GroupedText(999, {Language::German}), "999");
    EXPECT_EQ(GroupedText(1204, {Language::German}), "1.204");
    EXPECT_EQ(GroupedText(10000000, {Language::German}), "10.000.000");
}
