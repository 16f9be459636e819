// SPDX-License-Identifier: MIT
#include "filter/WrappedNumberList.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;

} // namespace

TEST(WrappedNumberList, EachTextHoldsWhatItHasRoomFor) {
    EXPECT_EQ(WrapNumberList("1-5,10,12,14", 8, 8), (Texts{"1-5,10", "12,14"}));
    EXPECT_EQ(WrapNumberList("1-5,10,12,14", 9, 8), (Texts{"1-5,10,12", "14"}));
    EXPECT_EQ(WrapNumberList("1-5,10,12,14", 6, 5), (Texts{"1-5,10", "12,14"}));
    EXPECT_EQ(WrapNumberList("1-5,10,12,14", 5, 4), (Texts{"1-5", "10", "12", "14"}));
    EXPECT_EQ(WrapNumberList("1-5,10,12,14", 12, 4), (Texts{"1-5,10,12,14"}));
    EXPECT_EQ(WrapNumberList("", 5, 5), (Texts{""}));
}

TEST(WrappedNumberList, AFirstTextWithoutRoomIsEmpty) {
    EXPECT_EQ(WrapNumberList("10,12", 1, 5), (Texts{"", "10,12"}));
    EXPECT_EQ(WrapNumberList("10,12", 0, 2), (Texts{"", "10", "12"}));
}

TEST(WrappedNumberList, CharactersCount) {
    EXPECT_EQ(WrapNumberList("äöü,5", 5, 5), (Texts{"äöü,5"}));
    EXPECT_EQ(WrapNumberList("äöü,5", 4, 5), (Texts{"äöü", "5"}));
}

TEST(WrappedNumberList, EmptyPartsStayBehindTheirPart) {
    EXPECT_EQ(WrapNumberList(",,1,,,2,", 6, 4), (Texts{",,1,,", "2,"}));
    EXPECT_EQ(WrapNumberList("1,2,,3", 4, 4), (Texts{"1,2,", "3"}));
    EXPECT_EQ(WrapNumberList("1,2,,3", 3, 4), (Texts{"1", "2,,3"}));
    EXPECT_EQ(WrapNumberList(",,,", 3, 3), (Texts{",,,"}));
}

TEST(WrappedNumberList, APartThatIsTooLongStandsAlone) {
    EXPECT_EQ(WrapNumberList("1,typed here,2", 5, 5), (Texts{"1", "typed here", "2"}));
    EXPECT_EQ(WrapNumberList("typed here,2", 5, 5), (Texts{"", "typed here", "2"}));
    EXPECT_EQ(WrapNumberList("1,2,,,,,3", 4, 4), (Texts{"1,2", "3"}));
    EXPECT_EQ(WrapNumberList("1,typed,,,here", 5, 5), (Texts{"1", "typed", "here"}));
}

TEST(WrappedNumberList, ATextGoesOnInWhatItHasNoRoomFor) {
    EXPECT_TRUE(GoesOnIn("1-5,10,12", 9, "14,16"));
    EXPECT_FALSE(GoesOnIn("1-5,10", 9, "14,16"));
    EXPECT_TRUE(GoesOnIn("1-5,10", 8, "14,16"));
    EXPECT_TRUE(GoesOnIn("1-5,10", 9, "14,,16")) << "the empty part stays with the number";
    EXPECT_FALSE(GoesOnIn("1-5,10", 8, "6,14"));
    EXPECT_TRUE(GoesOnIn("", 1, "14"));
    EXPECT_FALSE(GoesOnIn("", 2, "14"));
    EXPECT_FALSE(GoesOnIn("1-5", 3, ""));
    EXPECT_TRUE(GoesOnIn("longer than its room", 3, "1"));
}
