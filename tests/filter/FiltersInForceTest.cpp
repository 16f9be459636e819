// SPDX-License-Identifier: MIT
#include "filter/FiltersInForce.h"

#include "filter/FilterText.h"

#include <gtest/gtest.h>

namespace {

std::vector<FilterDefinition> FiltersOf(const std::vector<std::string>& texts) {
    std::vector<FilterDefinition> filters;
    for (const std::string& text : texts) {
        filters.emplace_back();
        EXPECT_TRUE(ParseFilter(text, filters.back())) << text;
    }
    return filters;
}

bool OnlyAll(const std::vector<std::string>& texts) { return IsAllEntries(FiltersOf(texts)); }

} // namespace

TEST(FiltersInForce, OnlyAllEntriesIsTheDefaultList) {
    EXPECT_TRUE(IsAllEntries(DefaultFilters()));
    EXPECT_TRUE(OnlyAll({"I|0||||1", "I|0||||1"}));
    // A name and a sender are no conditions of this type.
    EXPECT_TRUE(OnlyAll({"I|0||A|B|1"}));
}

TEST(FiltersInForce, EveryOtherActiveFilterMakesADifference) {
    EXPECT_FALSE(OnlyAll({"I|0||||1", "X|8|5|||1"}));
    EXPECT_FALSE(OnlyAll({"I|0||||1", "H|3||||1"}));
    EXPECT_FALSE(OnlyAll({"I|0||||1", "I|3||||1"}));
    EXPECT_FALSE(OnlyAll({"I|0||||1", "X|0||||1"}));
    EXPECT_FALSE(OnlyAll({"I|0|a|||1"}));
    EXPECT_FALSE(OnlyAll({"I|3||||1"}));
}

TEST(FiltersInForce, WithoutAFilterThatAddsAllEntriesTheyAreNotAll) {
    EXPECT_FALSE(OnlyAll({}));
    EXPECT_FALSE(OnlyAll({"I|0||||0"}));
    EXPECT_FALSE(OnlyAll({"H|0||||1"}));
}

TEST(FiltersInForce, FiltersThatMatchNothingMakeNone) {
    EXPECT_TRUE(OnlyAll({"I|0||||1", "X|3||||0", "H|8|5|||0"}));
    EXPECT_TRUE(OnlyAll({"I|0||||1", "H|8||||1", "X|8|7-2,x|||1", "X|10||||1"}));
}

TEST(FiltersInForce, NumbersAreComparedWithoutTheOthers) {
    const auto filters = FiltersOf({"I|0||||1", "X|8|5|||1", "H|8|7|||0"});
    EXPECT_TRUE(HaveSameNumbers(filters, FiltersOf({"X|8|5|||1", "I|3||||1", "X|0|a|||1", "H|8|7|||0"})));
    EXPECT_FALSE(HaveSameNumbers(filters, FiltersOf({"I|0||||1", "X|8|5|||1"})));
    EXPECT_FALSE(HaveSameNumbers(filters, FiltersOf({"I|0||||1", "X|8|5|||1", "H|8|7|||1"})));
    EXPECT_FALSE(HaveSameNumbers(filters, FiltersOf({"I|0||||1", "X|8|5-6|||1", "H|8|7|||0"})));
    EXPECT_FALSE(HaveSameNumbers(DefaultFilters(), filters));
    EXPECT_TRUE(HaveSameNumbers(DefaultFilters(), {}));
}

TEST(FiltersInForce, HighlightsHideNothing) {
    EXPECT_TRUE(HideByNumber(FiltersOf({"I|0||||1", "X|8|5|||1"})));
    EXPECT_TRUE(HideByNumber(FiltersOf({"I|8|5|||1"})));
    EXPECT_FALSE(HideByNumber(FiltersOf({"I|0||||1", "X|8|5|||0", "H|8|5|||1", "X|3||||1"})));
}

TEST(FiltersInForce, ChangeHereTakesForce) {
    const auto before = FiltersOf({"I|0||||1", "X|8|5|||1"});
    const auto after = FiltersOf({"I|0||||1", "X|8|5-6|||1"});
    EXPECT_EQ(WithChange(before, before, after), after);
    EXPECT_EQ(WithChange(after, after, before), before);
}

TEST(FiltersInForce, ChangesOfOthersWaitForTheNextRun) {
    const auto inForce = FiltersOf({"I|0||||1"});
    // Somebody has added two filters; then the person removes an entry.
    const auto before = FiltersOf({"I|0||||1", "X|3||||1", "H|0|a|||1"});
    EXPECT_EQ(WithChange(inForce, before, FiltersOf({"I|0||||1", "X|3||||1", "H|0|a|||1", "X|8|5|||1"})),
              FiltersOf({"I|0||||1", "X|8|5|||1"}));
    // A filter that was in force goes, or is replaced.
    const auto highlighted = FiltersOf({"I|0||||1", "H|8|5|||1"});
    EXPECT_EQ(
        WithChange(highlighted, FiltersOf({"I|3||||1", "H|8|5|||1"}), FiltersOf({"I|3||||1", "H|8||||1"})),
        FiltersOf({"I|0||||1", "H|8||||1"}));
}
