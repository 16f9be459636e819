// SPDX-License-Identifier: MIT
#include "filter/NumberList.h"

#include "filter/NumberListEditor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <utility>

namespace {

// The entries from 0 to 30 that the list matches.
std::string Matches(std::string_view list) {
    std::string matches;
    for (EntryNumber entry = 0; entry <= 30; ++entry)
        if (MatchNumberList(entry, list))
            matches += std::to_string(entry) + " ";
    return matches;
}

std::string WithNumber(std::string_view list, EntryNumber number) {
    NumberListEditor editor;
    editor.Append(list);
    editor.Add(number);
    return editor.Text();
}

std::string WithoutNumber(std::string_view list, EntryNumber number) {
    NumberListEditor editor;
    editor.Append(list);
    editor.Remove(number);
    return editor.Text();
}

std::string MatchesOfRanges(std::string_view list) {
    std::string matches;
    for (const NumberRange& range : ParseNumberList(list))
        for (EntryNumber entry = range.First; entry <= std::min<EntryNumber>(range.Last, 30); ++entry)
            matches += std::to_string(entry) + " ";
    return matches;
}

// Any text that a user might type as a number list.
std::string WildList(std::mt19937& random) {
    constexpr const char* Pieces[] = {"0", "1", "2", "7",  "10", "9-12", "3-5", "12-9",          " 4 ",
                                      "-", "x", "",  "ä€", " ",  "007",  "5-",  "20-99999999999"};
    std::string list;
    for (std::size_t piece = random() % 8; piece > 0; --piece)
        list += std::string(Pieces[random() % std::size(Pieces)]) + (random() % 4 == 0 ? "" : ",");
    return list;
}

std::vector<std::string> Parts(std::string_view list) {
    std::vector<std::string> parts;
    AnyNumberPart(list, [&](std::string_view part) {
        parts.emplace_back(part);
        return false;
    });
    return parts;
}

} // namespace

TEST(NumberList, NumbersAndRanges) {
    const std::pair<const char*, const char*> lists[] = {
        {"5", "5 "},
        {"2-4,7", "2 3 4 7 "},
        {"3,10-12", "3 10 11 12 "},
        {"7-2", ""},
        {"", ""},
        {" 5 , 7 - 8 ", "5 7 8 "},
        {"7-7", "7 "},
        {"4,3,4,2-6,5-8", "2 3 4 5 6 7 8 "},
        {"29-99999999999999999999", "29 30 "},
        {"99999999999999999999", ""},
        {"007", "7 "},
    };
    for (const auto& [list, expected] : lists) {
        EXPECT_EQ(Matches(list), expected) << list;
        EXPECT_EQ(MatchesOfRanges(list), expected) << list;
    }
}

TEST(NumberList, AnythingElseMatchesNothing) {
    for (const char* list :
         {"-5", "3-", "-", "x", "3x", "+3", "3-4-5", "1 2", "3--5", "0x5", "3;4", "\t5", "5.0"}) {
        EXPECT_EQ(Matches(list), "") << list;
        EXPECT_EQ(MatchesOfRanges(list), "") << list;
    }
    EXPECT_EQ(Matches("x,5,-7,"), "5 ");
}

TEST(NumberList, RangesAreSortedAndMerged) {
    EXPECT_EQ(ParseNumberList("9,1-3,2-5,20,6"),
              (std::vector<NumberRange>{{1, 5}, {6, 6}, {9, 9}, {20, 20}}));
}

TEST(NumberList, NumbersGrowWithTheirEntries) {
    EXPECT_EQ(ShiftNumberList("3-5, 20 ,7", 15), "18-20,35,22");
    EXPECT_EQ(ShiftNumberList("3-5,20", -4), "0-1,16");
    EXPECT_EQ(ShiftNumberList("3,x,5-4,9", 1), "4,10");
    EXPECT_EQ(ShiftNumberList("3", -4), "");
    EXPECT_EQ(ShiftNumberList("", 4), "");
    EXPECT_EQ(ShiftNumberList("4294967295", 4), "4294967295");
}

TEST(NumberList, AddingANumber) {
    struct Case {
        const char* List;
        EntryNumber Number;
        const char* Expected;
    };
    const Case cases[] = {
        {"", 5, "5"},                    // the first
        {"5", 5, "5"},                   // held already
        {"2-9", 5, "2-9"},               //
        {"1,2-9,4", 5, "1,2-9,4"},       //
        {"5", 4, "4-5"},                 // beside a number
        {"5", 6, "5-6"},                 //
        {"5-7", 4, "4-7"},               // beside a range
        {"5-7", 8, "5-8"},               //
        {"7-7", 8, "7-8"},               //
        {"1,5,9", 6, "1,5-6,9"},         // the order stays
        {"3,5", 4, "3-4,4-5"},           // between two parts, nothing is merged
        {"5-9,1-3", 4, "4-9,1-4"},       //
        {"5,5", 6, "5-6,5-6"},           //
        {"5,9,3-5", 6, "5-6,9,3-6"},     // more than two on a side become one
        {"5,9,3-5,4-5,x", 6, "9,x,3-6"}, //
        {"7,7-8,1,7", 6, "1,6-8"},       //
        {"9,1", 5, "9,1,5"},             // beside none
        {"0", 1, "0-1"},                 // the ends of the numbers
        {"1", 0, "0-1"},                 //
        {"4294967294", 4294967295, "4294967294-4294967295"},
        {"4294967295", 0, "4294967295,0"},
        {"9-12", 13, "9-13"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(WithNumber(c.List, c.Number), c.Expected) << c.List << " + " << c.Number;
}

TEST(NumberList, RemovingANumber) {
    struct Case {
        const char* List;
        EntryNumber Number;
        const char* Expected;
    };
    const Case cases[] = {
        {"4-9", 4, "5-9"},
        {"4-9", 9, "4-8"},
        {"4-9", 6, "4-5,7-9"},
        {"4-9", 5, "4,6-9"},
        {"4-9", 8, "4-7,9"},
        {"4-5", 4, "5"},
        {"4-5", 5, "4"},
        {"4-6", 5, "4,6"},
        {"7-7", 7, ""},
        {"5", 5, ""},
        {"1,5,9", 5, "1,9"},
        {"20,4-9,1", 6, "20,4-5,7-9,1"},
        {"3-4,4-5", 4, "3,5"}, // both parts hold it
        {"5,5", 5, ""},
        {"", 5, ""},
        {"1,2", 5, "1,2"},
        {"0-4294967295", 0, "1-4294967295"},
        {"0-4294967295", 4294967295, "0-4294967294"},
        {"9-11", 9, "10-11"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(WithoutNumber(c.List, c.Number), c.Expected) << c.List << " - " << c.Number;
}

TEST(NumberList, PartsThatDoNotChangeKeepTheirText) {
    EXPECT_EQ(WithNumber(" 1 , x,7-2,, 007 ,30", 31), " 1 , x,7-2,, 007 ,30-31");
    EXPECT_EQ(WithNumber(" 1 , x", 5), " 1 , x,5");
    EXPECT_EQ(WithNumber(" 1 , x", 2), "1-2, x");
    EXPECT_EQ(WithNumber("7-2", 6), "7-2,6") << "a range that matches nothing is not extended";
    EXPECT_EQ(WithNumber("  ", 6), "  ,6");
    EXPECT_EQ(WithNumber(",", 6), ",,6");
    EXPECT_EQ(WithNumber("3--5,äöü|€", 4), "3--5,äöü|€,4");
    EXPECT_EQ(WithoutNumber("x, 5 ,007,,8", 5), "x,007,,8");
    EXPECT_EQ(WithoutNumber("x,007", 7), "x");
    EXPECT_EQ(WithoutNumber("5,", 5), "");
    EXPECT_EQ(WithoutNumber(" 4 - 6 ,\t", 5), "4,6,\t");
}

TEST(NumberList, AnyListMatchesWhatItMatchedAndTheNumber) {
    std::mt19937 random(4);
    for (int round = 0; round < 20000; ++round) {
        const std::string list = WildList(random);
        const auto number = static_cast<EntryNumber>(random() % 16);
        const std::string added = WithNumber(list, number);
        const std::string removed = WithoutNumber(list, number);
        EXPECT_TRUE(MatchNumberList(number, added)) << list << " + " << number;
        EXPECT_FALSE(MatchNumberList(number, removed)) << list << " - " << number;
        for (EntryNumber other = 0; other <= 30; ++other) {
            if (other == number)
                continue;
            EXPECT_EQ(MatchNumberList(other, added), MatchNumberList(other, list)) << list << "+" << number;
            EXPECT_EQ(MatchNumberList(other, removed), MatchNumberList(other, list)) << list << "-" << number;
        }
    }
}

TEST(NumberList, AnyPartThatNamesNoEntryKeepsItsText) {
    const auto senseless = [](std::string_view list) {
        std::multiset<std::string> parts;
        for (const std::string& part : Parts(list))
            if (!part.empty() && !ParseNumberPart(part))
                parts.insert(part);
        return parts;
    };
    std::mt19937 random(5);
    for (int round = 0; round < 20000; ++round) {
        const std::string list = WildList(random);
        const auto number = static_cast<EntryNumber>(random() % 16);
        EXPECT_EQ(senseless(WithNumber(list, number)), senseless(list)) << list;
        EXPECT_EQ(senseless(WithoutNumber(list, number)), senseless(list)) << list;
    }
}
