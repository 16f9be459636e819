// SPDX-License-Identifier: MIT
#include "eventinfo/Numbers.h"

#include <gtest/gtest.h>

TEST(Numbers, HexadecimalEndsAtTheFirstOtherCharacter) {
    EXPECT_EQ(ReadHexadecimal("1A"), 26);
    EXPECT_EQ(ReadHexadecimal("1a"), 26);
    EXPECT_EQ(ReadHexadecimal("0005"), 5);
    EXPECT_EQ(ReadHexadecimal("12G4"), 0x12);
    EXPECT_EQ(ReadHexadecimal("12 34"), 0x12);
    EXPECT_EQ(ReadHexadecimal("0x12"), 0);
    EXPECT_EQ(ReadHexadecimal(""), 0);
    EXPECT_EQ(ReadHexadecimal("-1"), 0);
    EXPECT_EQ(ReadHexadecimal("xyz"), 0);
}

TEST(Numbers, HexadecimalIsNeverNegative) {
    EXPECT_EQ(ReadHexadecimal("7FFF"), 32767);
    EXPECT_EQ(ReadHexadecimal("8000"), 32768);
    EXPECT_EQ(ReadHexadecimal("FFFF"), 65535);
    EXPECT_EQ(ReadHexadecimal("FFFFFFFF"), 4294967295);
}

TEST(Numbers, MoreThanEightDigitsAreTheNumberOfNothing) {
    EXPECT_EQ(ReadHexadecimal("100000000"), NumberOfNothing);
    EXPECT_EQ(ReadHexadecimal("000000005"), NumberOfNothing);
    EXPECT_EQ(ReadHexadecimal("00000005 9"), 5);
    EXPECT_EQ(ReadHexadecimal(std::string(100000, 'F')), NumberOfNothing);
}

TEST(Numbers, DecimalEndsAtTheFirstOtherCharacter) {
    EXPECT_EQ(ReadDecimal("938"), 938);
    EXPECT_EQ(ReadDecimal("007"), 7);
    EXPECT_EQ(ReadDecimal("  12;"), 12);
    EXPECT_EQ(ReadDecimal("+12"), 12);
    EXPECT_EQ(ReadDecimal("6804.NC"), 6804);
    EXPECT_EQ(ReadDecimal("-0"), 0);
    for (const char* text : {"", " ", "abc", "-", "+-1", "\"12\""})
        EXPECT_FALSE(ReadDecimal(text)) << text;
}

TEST(Numbers, NegativeAndEndlessDecimalsAreTheNumberOfNothing) {
    EXPECT_EQ(ReadDecimal("-1"), NumberOfNothing);
    EXPECT_EQ(ReadDecimal("-5"), NumberOfNothing);
    EXPECT_EQ(ReadDecimal("9223372036854775808"), NumberOfNothing);
    EXPECT_EQ(ReadDecimal(std::string(100000, '9')), NumberOfNothing);
}

TEST(Numbers, IsDecimalMeansDigitsOnly) {
    EXPECT_TRUE(IsDecimal("0"));
    EXPECT_TRUE(IsDecimal("0123456789"));
    for (const char* text : {"", " 1", "1 ", "-1", "1.5", "1A"})
        EXPECT_FALSE(IsDecimal(text)) << text;
}
