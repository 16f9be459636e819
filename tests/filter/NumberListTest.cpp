// SPDX-License-Identifier: MIT
#include "filter/NumberList.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// The entries from 0 to 30 that the list matches.
std::string Matches(std::string_view list) {
    std::string matches;
    for (EntryNumber entry = 0; entry <= 30; ++entry)
        if (MatchNumberList(entry, list))
            matches += std::to_string(entry) + " ";
    return matches;
}

std::string MatchesOfRanges(std::string_view list) {
    std::string matches;
    for (const NumberRange& range : ParseNumberList(list))
        for (EntryNumber entry = range.First; entry <= std::min<EntryNumber>(range.Last, 30); ++entry)
            matches += std::to_string(entry) + " ";
    return matches;
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
