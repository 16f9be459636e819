// SPDX-License-Identifier: MIT
#include "filter/FilterText.h"

#include <gtest/gtest.h>

namespace {

// The filter that a text gives, written again; "invalid" when it gives none.
std::string Again(std::string_view text) {
    FilterDefinition filter;
    return ParseFilter(text, filter) ? FormatFilter(filter) : "invalid";
}

} // namespace

TEST(FilterText, WholeForm) {
    FilterDefinition filter;
    ASSERT_TRUE(ParseFilter("X|3|N938|NAME|SENDER|0", filter));
    EXPECT_EQ(filter, (FilterDefinition{FilterActions::Exclude, 3, "N938", "NAME", "SENDER", false}));
    EXPECT_EQ(FormatFilter(filter), "X|3|N938|NAME|SENDER|0");
}

TEST(FilterText, DefaultFilterHasSixFields) {
    EXPECT_EQ(FormatFilter(DefaultFilters().front()), "I|0||||1");
    EXPECT_EQ(Again("I|0||||1"), "I|0||||1");
}

TEST(FilterText, FiveFieldsAreTheOlderActiveForm) {
    EXPECT_EQ(Again("I|3|abc|NAME|SENDER"), "I|3|abc|NAME|SENDER|1");
    EXPECT_EQ(Again("I|0|||1"), "I|0|||1|1");
    EXPECT_EQ(Again("H|8|10-20,35|||0"), "H|8|10-20,35|||0");
}

TEST(FilterText, OtherNumbersOfFieldsAreInvalid) {
    for (const char* text : {"", "I", "I|3|a|b", "I|3|a|b|c|1|x", "I|3|a|b|c|1|"})
        EXPECT_EQ(Again(text), "invalid") << text;
}

TEST(FilterText, ActionsAreExactLetters) {
    EXPECT_EQ(Again("H|1||||1"), "H|1||||1");
    for (const char* text : {"Q|0||||1", "i|0||||1", "|0||||1", "II|0||||1", " I|0||||1"})
        EXPECT_EQ(Again(text), "invalid") << text;
    FilterDefinition filter;
    filter.Action = 7;
    EXPECT_EQ(FormatFilter(filter), "H|0||||1");
}

TEST(FilterText, TypeIsAWholeNumberOfSixteenBits) {
    EXPECT_EQ(Again("I| 3 ||||1"), "I|3||||1");
    EXPECT_EQ(Again("I|+3||||1"), "I|3||||1");
    EXPECT_EQ(Again("I|-3||||1"), "I|-3||||1");
    EXPECT_EQ(Again("I|32767||||1"), "I|32767||||1");
    EXPECT_EQ(Again("I|-32768||||1"), "I|-32768||||1");
    for (const char* type :
         {"", " ", "x", "3x", "32768", "-32769", "+", "-", "+-3", "--3", "3 3", "3.0", "0x3"})
        EXPECT_EQ(Again("I|" + std::string(type) + "||||1"), "invalid") << type;
}

TEST(FilterText, OnlyOneIsActive) {
    FilterDefinition filter;
    for (const char* flag : {"0", "", "2", "true", " 1"}) {
        ASSERT_TRUE(ParseFilter("I|0||||" + std::string(flag), filter));
        EXPECT_FALSE(filter.Active) << flag;
    }
}

TEST(FilterText, SeparatorInAFieldMakesTheLineInvalid) {
    FilterDefinition filter;
    filter.StringFilter = "a|b";
    EXPECT_EQ(Again(FormatFilter(filter)), "invalid");
}

TEST(StringFilterText, ReadsAnyText) {
    EXPECT_EQ(ParseStringFilter("N938|comment|1"), (StringFilter{"N938", "comment"}));
    EXPECT_EQ(ParseStringFilter("N938"), (StringFilter{"N938", ""}));
    EXPECT_EQ(ParseStringFilter("N938|comment"), (StringFilter{"N938", "comment"}));
    EXPECT_EQ(ParseStringFilter("N938|comment|a|b|c|d|e|f|g"), (StringFilter{"N938", "comment"}));
    EXPECT_EQ(ParseStringFilter(""), StringFilter{});
    EXPECT_EQ(FormatStringFilter({"N938", "comment"}), "N938|comment|1");
    EXPECT_EQ(FormatStringFilter({}), "||1");
}
