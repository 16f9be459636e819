// SPDX-License-Identifier: MIT
#include "dialogs/TextOrder.h"

#include <gmock/gmock.h>

namespace {
using Cells = std::vector<std::string>;
using testing::ElementsAre;
} // namespace

TEST(TextOrder, ComparesWithoutCase) {
    EXPECT_THAT(TextOrder(Cells{"b", "A", "a", "B"}, false), ElementsAre(1, 2, 0, 3));
    EXPECT_THAT(TextOrder(Cells{"ö", "Ä", "ä", "z"}, false), ElementsAre(3, 1, 2, 0));
    EXPECT_THAT(TextOrder(Cells{"b", "", "a"}, false), ElementsAre(1, 2, 0));
}

TEST(TextOrder, SameTextsKeepTheirOrderInBothDirections) {
    EXPECT_THAT(TextOrder(Cells{"x", "b", "X", "a", "x"}, false), ElementsAre(3, 1, 0, 2, 4));
    EXPECT_THAT(TextOrder(Cells{"x", "b", "X", "a", "x"}, true), ElementsAre(0, 2, 4, 1, 3));
}

TEST(TextOrder, NothingAndInvalidTextAreNoDanger) {
    EXPECT_TRUE(TextOrder({}, false).empty());
    EXPECT_EQ(TextOrder(Cells{"\xFF", "a", "\xC3"}, true).size(), 3U);
}
