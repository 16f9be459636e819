// SPDX-License-Identifier: MIT
#include "rows/SortKeys.h"

#include <gtest/gtest.h>

#include <vector>

TEST(DateKey, TakesDateAndClockInEitherOrder) {
    EXPECT_EQ(DateKey("14.02.2012 15:30:12"), "20120214153012");
    EXPECT_EQ(DateKey("15:30:12 14.02.2012"), "20120214153012");
    EXPECT_EQ(DateKey("14.02.2012    15:30:12"), "20120214153012");
    EXPECT_EQ(DateKey("  14.02.2012 15:30:12 "), "20120214153012");
    EXPECT_EQ(DateKey("14.02.2012 15:30"), "20120214153000");
    EXPECT_EQ(DateKey("4.2.2012 5:3:2"), "20120204050302");
}

TEST(DateKey, TakesEitherAlone) {
    EXPECT_EQ(DateKey("14.02.2012"), "20120214000000");
    EXPECT_EQ(DateKey("15:30:12"), "18991230153012");
    EXPECT_EQ(DateKey("15:30"), "18991230153000");
}

TEST(DateKey, AFractionDoesNotCount) {
    EXPECT_EQ(DateKey("14.02.2012 15:30:12.999"), "20120214153012");
    EXPECT_EQ(DateKey("15:30:12.5 14.02.2012"), "20120214153012");
    EXPECT_EQ(DateKey("15:30:12.123456"), "18991230153012");
}

TEST(DateKey, YearsOfTwoDigitsAreNearOurTime) {
    EXPECT_EQ(DateKey("01.02.00"), "20000201000000");
    EXPECT_EQ(DateKey("01.02.29"), "20290201000000");
    EXPECT_EQ(DateKey("01.02.30"), "19300201000000");
    EXPECT_EQ(DateKey("01.02.99"), "19990201000000");
    EXPECT_EQ(DateKey("01.02.0100"), "01000201000000");
    EXPECT_EQ(DateKey("01.02.9999 23:59:59"), "99990201235959");
}

TEST(DateKey, DaysThatThereAreNot) {
    EXPECT_EQ(DateKey("29.02.2012"), "20120229000000");
    EXPECT_EQ(DateKey("29.02.2000"), "20000229000000");
    for (const char* text : {"29.02.2013", "29.02.1900", "31.02.2012", "31.04.2012", "00.01.2012",
                             "01.00.2012", "01.13.2012", "32.01.2012", "01.01.0000", "01.01.0099"})
        EXPECT_EQ(DateKey(text), "") << text;
}

TEST(DateKey, ClockTimesThatThereAreNot) {
    for (const char* text : {"24:00:00", "25:00", "12:60:00", "12:00:60", "14.02.2012 25:00:00"})
        EXPECT_EQ(DateKey(text), "") << text;
}

TEST(DateKey, OtherTextsHaveNone) {
    for (const char* text : {"",
                             " ",
                             "12",
                             "x",
                             "2012-02-14",
                             "2012-02-14 15:30:12",
                             "14/02/2012",
                             "14.02.",
                             "14.02",
                             "14.02.201",
                             "14.02.20123",
                             "114.02.2012",
                             "14.002.2012",
                             "14.02.201215:30:12",
                             "14.02.2012 15:30:12 x",
                             "14.02.2012 14.02.2012",
                             "15:30 15:30",
                             "15:30:12 14.02.2012 15:30",
                             "15",
                             "15:",
                             ":30",
                             "15:30:",
                             "15:30:12.",
                             "15:30:12,5",
                             "15:30.5",
                             "115:30",
                             "15:130",
                             "15:30:112",
                             "14.02.2012\t15:30",
                             "14 .02.2012",
                             "-1.02.2012",
                             "14.02.20 12",
                             "1\xC3\xA4.02.2012",
                             "14.02.2012 15:30:12 PM"})
        EXPECT_EQ(DateKey(text), "") << text;
}

TEST(NumberKey, HasThirtyDigitsOnEitherSideOfThePoint) {
    EXPECT_EQ(NumberKey("12"), "000000000000000000000000000012.000000000000000000000000000000");
    EXPECT_EQ(NumberKey("12.50"), "000000000000000000000000000012.500000000000000000000000000000");
    EXPECT_EQ(NumberKey("+007"), "000000000000000000000000000007.000000000000000000000000000000");
    EXPECT_EQ(NumberKey(".25"), "000000000000000000000000000000.250000000000000000000000000000");
    EXPECT_EQ(NumberKey(" 3. "), "000000000000000000000000000003.000000000000000000000000000000");
    EXPECT_EQ(NumberKey("0").size(), 61U);
}

TEST(NumberKey, NegativeNumbersHaveNinesComplement) {
    EXPECT_EQ(NumberKey("-12.5"), "999999999999999999999999999987.499999999999999999999999999999&");
    EXPECT_EQ(NumberKey("-1"), "999999999999999999999999999998.999999999999999999999999999999&");
    EXPECT_EQ(NumberKey("-0"), NumberKey("0"));
    EXPECT_EQ(NumberKey("-0.00"), NumberKey("0"));
}

TEST(NumberKey, TheOrderIsThatOfTheNumbersWithTheNegativeOnesLast) {
    const std::vector<const char*> order{"",   "0",  "0.5",  "1",   "1.25", "2",  "9",
                                         "10", "99", "1000", "-20", "-3.5", "-3", "-0.25"};
    for (std::size_t i = 1; i < order.size(); ++i)
        EXPECT_LT(NumberKey(order[i - 1]), NumberKey(order[i])) << order[i - 1] << " before " << order[i];
}

TEST(NumberKey, LongNumbersLoseNoDigitBeforeThePoint) {
    EXPECT_EQ(NumberKey("123456789012345678901234567890123.1"),
              "123456789012345678901234567890123.100000000000000000000000000000");
    EXPECT_EQ(NumberKey("0." + std::string(30, '1') + "9"),
              std::string(30, '0') + "." + std::string(30, '1'));
}

TEST(NumberKey, OtherTextsHaveNone) {
    for (const char* text : {"", " ", "x", "1x", "-", "+", ".", "-.", "1.2.3", "--1", "+-1", "1 2", "1e5",
                             "1,5", "&1", "0x10", "1-", "- 1"})
        EXPECT_EQ(NumberKey(text), "") << text;
}
