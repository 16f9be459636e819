// SPDX-License-Identifier: MIT
#include "rows/ContentText.h"

#include <gtest/gtest.h>

TEST(ContentText, LinesOfACellStandBelowEachOther) {
    EXPECT_EQ(WithLineBreaks("a | b |c | "), "a\r\nb |c\r\n");
    EXPECT_EQ(WithLineBreaks(""), "");
}

TEST(ContentText, DataWithoutSeparatorIsOneLineAndThenTheComment) {
    EXPECT_EQ(ContentText("axis X", "seen"), "axis X\r\nseen");
    EXPECT_EQ(ContentText("axis X", ""), "axis X\r\n");
    EXPECT_EQ(ContentText("", ""), "\r\n");
}

TEST(ContentText, SeparatorsAreLineEnds) {
    EXPECT_EQ(ContentText("a | b | c", "d | e"), "a\r\nb\r\nc\r\nd\r\ne");
    EXPECT_EQ(ContentText(" | ", " | "), "\r\n\r\n\r\n");
    EXPECT_EQ(ContentText("a | | b", ""), "a\r\n| b\r\n");
    EXPECT_EQ(ContentText("a|b |c| d", ""), "a|b |c| d\r\n");
}

TEST(ContentText, OfAVeryLongTextTheBeginningIsShown) {
    const std::string most(MostShownText, 'x');
    EXPECT_EQ(ContentText(most, "seen"), most + "\r\nseen");
    EXPECT_EQ(ContentText(most + "y", "seen"), most + "\r\n...\r\nseen");
    EXPECT_EQ(ContentText("axis X", most + "y"), "axis X\r\n" + most + "\r\n...");
    EXPECT_EQ(BeginningWithLineBreaks("a | b"), "a\r\nb");
    // No character is cut.
    const std::string cut = most.substr(1) + "€";
    EXPECT_EQ(BeginningWithLineBreaks(cut), most.substr(1) + "\r\n...");
}
