// SPDX-License-Identifier: MIT
#include "base/CodePage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

} // namespace

TEST(CodePage, ReadsWindows1252) {
    const CodePage codePage;
    EXPECT_EQ(codePage.Name(), "CP1252");
    EXPECT_EQ(codePage.ToUtf8("K\xFChlmittel \x80 \x96 \xDF"), "Kühlmittel € – ß");
}

TEST(CodePage, EveryCharacterOf1252) {
    const CodePage codePage;
    EXPECT_EQ(codePage.ToUtf8("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"), "€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
    EXPECT_EQ(codePage.ToUtf8("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"), "‘’“”•–—˜™š›œžŸ");
    for (unsigned byte = 0xA0; byte < 0x100; ++byte) {
        const std::string utf8{static_cast<char>(0xC0U | byte >> 6U),
                               static_cast<char>(0x80U | (byte & 0x3FU))};
        EXPECT_EQ(codePage.ToUtf8(std::string(1, static_cast<char>(byte))), utf8);
    }
}

TEST(CodePage, UndefinedBytesOf1252ComeBack) {
    const CodePage codePage;
    const std::string text = codePage.ToUtf8("\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(text, "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
    EXPECT_EQ(codePage.FromUtf8(text).Text, "\x81\x8D\x8F\x90\x9D");
}

TEST(CodePage, EveryPageIsTotalAndReversible) {
    for (const char* locale : {"de_DE.UTF-8", "cs_CZ.UTF-8", "ru_RU", "el_GR", "tr_TR", "lt_LT"}) {
        const CodePage codePage = CodePage::ForLocale(locale);
        const CodePage::Bytes back = codePage.FromUtf8(codePage.ToUtf8(AllBytes()));
        EXPECT_EQ(back.Text, AllBytes()) << codePage.Name();
        EXPECT_EQ(back.Lost, 0U) << codePage.Name();
    }
}

TEST(CodePage, LocaleChoosesThePage) {
    const std::pair<const char*, const char*> expected[] = {
        {"pl_PL.UTF-8", "CP1250"}, {"cs_CZ", "CP1250"}, {"hu_HU", "CP1250"},   {"sk", "CP1250"},
        {"ru_RU.UTF-8", "CP1251"}, {"uk_UA", "CP1251"}, {"bg_BG", "CP1251"},   {"tr_TR.UTF-8", "CP1254"},
        {"el_GR@euro", "CP1253"},  {"et_EE", "CP1257"}, {"lt_LT", "CP1257"},   {"lv_LV", "CP1257"},
        {"de_DE.UTF-8", "CP1252"}, {"en_US", "CP1252"}, {"C.UTF-8", "CP1252"}, {"", "CP1252"},
        {"POSIX", "CP1252"},       {"plx", "CP1252"}};
    for (const auto& [locale, name] : expected)
        EXPECT_EQ(CodePage::ForLocale(locale).Name(), name) << locale;
}

TEST(CodePage, RegionalPagesReadTheirLetters) {
    EXPECT_EQ(CodePage::ForLocale("cs_CZ").ToUtf8("\xF8\xE8"), "řč");
    EXPECT_EQ(CodePage::ForLocale("ru_RU").ToUtf8("\xCE\xF8\xE8\xE1\xEA\xE0"), "Ошибка");
    EXPECT_EQ(CodePage::ForLocale("el_GR").ToUtf8("\xE1\xE2"), "αβ");
    EXPECT_EQ(CodePage::ForLocale("tr_TR").ToUtf8("\xFE\xF0"), "şğ");
    EXPECT_EQ(CodePage::ForLocale("lv_LV").ToUtf8("\xE2\xEE"), "āī");
}

TEST(CodePage, LacksAreCountedAndBecomeQuestionMarks) {
    const CodePage::Bytes bytes = CodePage().FromUtf8("ü Ω ř \xF0\x9F\x98\x80");
    EXPECT_EQ(bytes.Text, "\xFC ? ? ?");
    EXPECT_EQ(bytes.Lost, 3U);
}

TEST(CodePage, DamagedUtf8IsLostByteByByte) {
    const CodePage::Bytes bytes = CodePage().FromUtf8("a\xFFz\xC3");
    EXPECT_EQ(bytes.Text, "a?z?");
    EXPECT_EQ(bytes.Lost, 2U);
}

TEST(CodePage, TextsOfEveryLengthAreConvertedWhole) {
    const CodePage codePage;
    for (std::size_t length = 0; length < 40; ++length)
        for (std::size_t umlaut = 0; umlaut <= length; ++umlaut) {
            std::string bytes(length, 'x');
            std::string expected = bytes;
            if (umlaut < length) {
                bytes[umlaut] = '\xE4';
                expected.replace(umlaut, 1, "ä");
            }
            EXPECT_EQ(codePage.ToUtf8(bytes), expected);
        }
}
