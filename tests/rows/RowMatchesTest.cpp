// SPDX-License-Identifier: MIT
#include "rows/RowMatches.h"

#include "support/EntriesFrom.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace {

constexpr std::int16_t Yes = 1;
constexpr std::int16_t No = 0;

bool Matches(std::string_view cell, std::string_view text, std::int16_t wholeWord,
             std::int16_t caseSensitive) {
    CellTest test({.SearchText = std::string(text),
                   .SearchWholeWord = wholeWord,
                   .SearchCaseSensitive = caseSensitive});
    return test.Matches(cell);
}

// The rules once more, as plainly as possible: over characters, with positions counted from 1.
namespace plain {

std::u32string Lower(std::u32string text) {
    static const std::map<char32_t, char32_t> lower{{'E', 'e'}, {'R', 'r'},   {'K', 'k'},   {0x212A, 'k'},
                                                    {'I', 'i'}, {0x130, 'i'}, {U'Ü', U'ü'}, {0x1E9E, U'ß'}};
    for (char32_t& c : text)
        if (const auto found = lower.find(c); found != lower.end())
            c = found->second;
    return text;
}

long Position(const std::u32string& cell, const std::u32string& text) {
    for (std::size_t place = 0; place + text.size() <= cell.size(); ++place)
        if (cell.compare(place, text.size(), text) == 0)
            return static_cast<long>(place) + 1;
    return 0;
}

bool Matches(std::u32string cell, std::u32string text, bool wholeWord, bool caseSensitive) {
    if (!caseSensitive) {
        cell = Lower(cell);
        text = Lower(text);
    }
    if (!wholeWord)
        return Position(cell, text) != 0;
    const std::u32string blank = U" ";
    return Position(cell, text + blank) == 1 || Position(cell, blank + text + blank) != 0 ||
           Position(cell, blank + text) == static_cast<long>(cell.size()) - static_cast<long>(text.size());
}

} // namespace plain

std::string ToUtf8(const std::u32string& text) {
    std::string utf8;
    for (const char32_t c : text) {
        if (c < 0x80) {
            utf8 += static_cast<char>(c);
        } else if (c < 0x800) {
            utf8 += static_cast<char>(0xC0 | c >> 6);
            utf8 += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | c >> 12);
            utf8 += static_cast<char>(0x80 | (c >> 6 & 0x3F));
            utf8 += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return utf8;
}

} // namespace

TEST(CellTest, CaseMattersOnlyWhereAsked) {
    EXPECT_TRUE(Matches("Error", "err", No, No));
    EXPECT_FALSE(Matches("Error", "err", No, Yes));
    EXPECT_TRUE(Matches("Error", "Err", No, Yes));
    EXPECT_TRUE(Matches("größe", "GRÖßE", No, No));
    EXPECT_FALSE(Matches("größe", "GRÖSSE", No, No));
    EXPECT_TRUE(Matches("20 \u212A", "20 k", No, No));
    EXPECT_TRUE(Matches("20 k", "20 \u212A", No, No));
    EXPECT_TRUE(Matches("\u0130stanbul", "istanbul", No, No));
    EXPECT_TRUE(Matches("", "", No, No));
}

TEST(CellTest, WholeWords) {
    EXPECT_FALSE(Matches("ERROR 12", "ERR", Yes, Yes));
    for (const char* cell : {"E ERR 12", "ERR 12", "12 ERR", "ERR"})
        EXPECT_TRUE(Matches(cell, "ERR", Yes, Yes)) << cell;
    EXPECT_TRUE(Matches("12 err", "ERR", Yes, No));
    EXPECT_FALSE(Matches("12 err", "ERR", Yes, Yes));
}

TEST(CellTest, CellOfTheSameLengthIsAWholeWord) {
    EXPECT_TRUE(Matches("XYZ", "ERR", Yes, Yes));
    EXPECT_TRUE(Matches("äöü", "ERR", Yes, No));
    EXPECT_TRUE(Matches("XYZ", "übü", Yes, No));
    EXPECT_FALSE(Matches("WXYZ", "ERR", Yes, No));
    EXPECT_TRUE(Matches("", "", Yes, No));
}

TEST(CellTest, OnlyTheFirstBlankBeforeTheTextCountsAtTheEnd) {
    EXPECT_TRUE(Matches("X Y ERR", "ERR", Yes, Yes));
    EXPECT_FALSE(Matches("X ERRO ERR", "ERR", Yes, Yes));
    EXPECT_TRUE(Matches(" ERR", "ERR", Yes, Yes));
}

TEST(CellTest, OtherFlagValuesMatchNothing) {
    for (const std::int16_t value : std::initializer_list<std::int16_t>{-1, 2, 256})
        for (const std::int16_t other : {No, Yes}) {
            EXPECT_FALSE(Matches("ERR", "ERR", value, other));
            EXPECT_FALSE(Matches("ERR", "ERR", other, value));
        }
}

TEST(CellTest, AgreesWithThePlainRulesOnRandomCells) {
    const std::u32string alphabet = U"  ErRkK\u212AiI\u0130üÜßẞ";
    std::mt19937 random(11);
    const auto randomText = [&](std::size_t length) {
        std::u32string text(length, U' ');
        for (char32_t& c : text)
            c = alphabet[random() % alphabet.size()];
        return text;
    };
    int matches = 0;
    constexpr int Rounds = 100000;
    for (int round = 0; round < Rounds; ++round) {
        const std::u32string cell = randomText(random() % 9);
        const std::u32string text = randomText(random() % 4);
        const bool wholeWord = random() % 2 != 0;
        const bool caseSensitive = random() % 2 != 0;
        const bool expected = plain::Matches(cell, text, wholeWord, caseSensitive);
        ASSERT_EQ(Matches(ToUtf8(cell), ToUtf8(text), wholeWord, caseSensitive), expected)
            << ToUtf8(cell) << "|" << ToUtf8(text) << "|" << wholeWord << caseSensitive;
        matches += expected;
    }
    EXPECT_GT(matches, Rounds / 10);
    EXPECT_LT(matches, Rounds - Rounds / 10);
}

TEST(RowMatches, LooksAtEventDataAndCommentOnly) {
    EntryTable entries;
    FillTable(entries, {{3, "drive", "PLC", "AXIS", "04.01.2010 12:34:56"}});
    entries.SetComment(0, "seen by night shift");
    const auto found = [&](std::string text) {
        CellTest test({.SearchText = std::move(text)});
        return RowMatches(entries, {.Entry = 0, .Highlighted = 0}, test);
    };
    for (const char* text : {"err", "DRIVE", "night"})
        EXPECT_TRUE(found(text)) << text;
    for (const char* text : {"plc", "axis", "2010", "0", "error drive"})
        EXPECT_FALSE(found(text)) << text;
}
