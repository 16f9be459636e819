// SPDX-License-Identifier: MIT
#include "base/UnicodeCase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(UnicodeLower, EachCharacterBecomesOne) {
    EXPECT_EQ(UnicodeLower(""), "");
    EXPECT_EQ(UnicodeLower("Achse X1_[@`{"), "achse x1_[@`{");
    EXPECT_EQ(UnicodeLower("GRÖSSE Übermaß ÄÖÜß"), "grösse übermaß äöüß");
    EXPECT_EQ(UnicodeLower("ŠKODA ŁÓDŹ ЁЖ ΣΣ"), "škoda łódź ёж σσ");
    EXPECT_EQ(UnicodeLower("\u212A \u0130 \u212B \u1E9E \u2126"), "k i å ß ω");
    EXPECT_EQ(UnicodeLower("\U00010400€"), "\U00010428€");
}

TEST(UnicodeLower, WhatIsNoUtf8Stays) {
    EXPECT_EQ(UnicodeLower("A\xFC"
                           "B\xC3"),
              "a\xFC"
              "b\xC3");
}

TEST(FormsOfLower, AreAllCharactersWithThatLowerCase) {
    EXPECT_THAT(FormsOfLower('a'), UnorderedElementsAre('a', 'A'));
    EXPECT_THAT(FormsOfLower('k'), UnorderedElementsAre('k', 'K', 0x212A));
    EXPECT_THAT(FormsOfLower('i'), UnorderedElementsAre('i', 'I', 0x0130));
    EXPECT_THAT(FormsOfLower(0xE5), UnorderedElementsAre(0xE5, 0xC5, 0x212B));
    EXPECT_THAT(FormsOfLower('7'), ElementsAre('7'));
    EXPECT_THAT(FormsOfLower('A'), IsEmpty());
}

TEST(CharacterCount, CountsCodePoints) {
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(CharacterCount("abc"), 3U);
    EXPECT_EQ(CharacterCount("ü€\U00010400"), 3U);
}

TEST(IsUtf8, TellsBytesThatAreNot) {
    for (const char* text : {"", "abc", "ü€\U00010400"})
        EXPECT_TRUE(IsUtf8(text)) << text;
    for (const char* text : {"\xFC", "a\xC3", "\xBC", "\xC3("})
        EXPECT_FALSE(IsUtf8(text)) << text;
}
