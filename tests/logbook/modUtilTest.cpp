// SPDX-License-Identifier: MIT
#include "logbook/modUtil.h"

#include <gtest/gtest.h>

static std::string Normalised(std::string_view text) {
    StampRoom room;
    return std::string(NormaliseStamp(text, room));
}

TEST(Trim, RemovesBlanksOnly) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");
    EXPECT_EQ(Trim(" \xA0 "), "\xA0");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(Mid, CutsByColumns) {
    EXPECT_EQ(Mid("abcdef", 2, 3), "bcd");
    EXPECT_EQ(Mid("abcdef", 5, 10), "ef");
    EXPECT_EQ(Mid("abcdef", 3), "cdef");
    EXPECT_EQ(Mid("abc", 1, 0), "");
}

TEST(Mid, PastTheEndIsEmpty) {
    EXPECT_EQ(Mid("abc", 4, 2), "");
    EXPECT_EQ(Mid("abc", 400, 2), "");
    EXPECT_EQ(Mid("", 1, 2), "");
}

TEST(Mid, ImpossibleColumnsAreRunTimeErrors) {
    EXPECT_THROW(Mid("abc", 0, 1), RunTimeError);
    EXPECT_THROW(Mid("abc", -3, 1), RunTimeError);
    EXPECT_THROW(Mid("abc", 1, -1), RunTimeError);
    EXPECT_THROW(Left("abc", -1), RunTimeError);
}

TEST(Right, GivesTheWholeTextWhenItIsShorter) {
    EXPECT_EQ(Right("abcdef", 2), "ef");
    EXPECT_EQ(Right("ab", 20), "ab");
    EXPECT_EQ(Right("", 3), "");
}

TEST(NormaliseStamp, TurnsEnglishDatesRound) {
    EXPECT_EQ(Normalised("12:34:56 Mon Jan 04 2010"), "04.01.2010 12:34:56");
    EXPECT_EQ(Normalised("12:34:56.789 Tue Feb 16 2010"), "16.02.2010 12:34:56.789");
    EXPECT_EQ(Normalised("12:34:56:789 Tue Feb 16 2010"), "16.02.2010 12:34:56:789");
}

TEST(NormaliseStamp, KnowsAllMonthsInAnyCase) {
    const std::pair<const char*, const char*> months[] = {
        {"Jan", "01"}, {"FEB", "02"}, {"mar", "03"}, {"aPr", "04"}, {"May", "05"}, {"Jun", "06"},
        {"Jul", "07"}, {"Aug", "08"}, {"Sep", "09"}, {"Oct", "10"}, {"Nov", "11"}, {"Dec", "12"}};
    for (const auto& [name, number] : months)
        EXPECT_EQ(Normalised(std::string("01:02:03 Mon ") + name + " 31 2010"),
                  std::string("31.") + number + ".2010 01:02:03");
}

TEST(NormaliseStamp, UnknownMonthLeavesDayAndYearRunTogether) {
    EXPECT_EQ(Normalised("12:34:56 Mon Foo 04 2010"), "042010 12:34:56");
}

TEST(NormaliseStamp, ShortTextGivesWhatThereIs) {
    EXPECT_EQ(Normalised(""), " ");
    EXPECT_EQ(Normalised("12:34:56"), " 12:34:56");
    EXPECT_EQ(Normalised("12:34:56.789"), " 12:34:56.789");
}

TEST(HexToChar, GivesThePrintableCharacter) {
    EXPECT_EQ(HexToChar("0x0041"), "A");
    EXPECT_EQ(HexToChar("  0x0041 "), "A");
    EXPECT_EQ(HexToChar("41"), "A");
    EXPECT_EQ(HexToChar("0x0020"), " ");
    EXPECT_EQ(HexToChar("0x007E"), "~");
}

TEST(HexToChar, OtherCodesGiveNothing) {
    EXPECT_EQ(HexToChar("0x007F"), "");
    EXPECT_EQ(HexToChar("0x001F"), "");
    EXPECT_EQ(HexToChar("0x"), "");
    EXPECT_EQ(HexToChar(""), "");
}

TEST(HexToChar, UnknownDigitsCountAsMinusOne) {
    EXPECT_EQ(HexToChar("0x004a"), "?");
    EXPECT_EQ(HexToChar("0x3x"), "/");
    EXPECT_EQ(HexToChar("0X0041"), ""); // the X is a digit of -1, which makes the value negative
}

TEST(HexToChar, ValueTooLongForSixtyFourBitsGivesNothing) {
    EXPECT_EQ(HexToChar("0x10000000000000000000041"), "");
    EXPECT_EQ(HexToChar(std::string(100, 'x')), "");
    EXPECT_EQ(HexToChar("0x" + std::string(100, '0') + "41"), "A");
}
