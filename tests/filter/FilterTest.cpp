// SPDX-License-Identifier: MIT
#include "filter/Filter.h"

#include "filter/FilterRun.h"
#include "filter/FilterText.h"
#include "support/EntriesFrom.h"
#include "support/PlainFilters.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// A run with filters in their text form: the entry numbers of the rows, highlighted ones with a "*".
std::string Rows(const EntryTable& entries, const std::vector<std::string>& filterTexts) {
    std::vector<FilterDefinition> filters;
    for (const std::string& text : filterTexts) {
        FilterDefinition filter;
        EXPECT_TRUE(ParseFilter(text, filter)) << text;
        filters.push_back(filter);
    }
    LogbookRows rows;
    EXPECT_TRUE(ApplyFilters(entries, filters, rows));
    std::string text;
    for (const LogbookRow& row : rows)
        text += std::to_string(row.Entry) + (row.Highlighted ? "* " : " ");
    return text;
}

class FilterTest : public testing::Test {
  protected:
    FilterTest() {
        FillTable(Entries, {{1, "xABx N938", "PLC", "ABC"},  // 0
                            {3, "N938 key", "MAIN", ""},     // 1
                            {3, "N940 key", "MAIN", "ABCD"}, // 2
                            {5, "On", "", ""},               // 3
                            {6, "0x000D -> ENT", "", "ABC"}, // 4
                            {4, "bus", "PLC", "ABC"},        // 5
                            {9, "AB", "", ""},               // 6
                            {7, "", "", ""},                 // 7
                            {2, "warm", "PLC", "abc"},       // 8
                            {1, "AB", "plc", "ABC"}});       // 9
    }

    EntryTable Entries;
};

} // namespace

TEST_F(FilterTest, DefaultListShowsEveryEntry) {
    LogbookRows rows;
    EXPECT_TRUE(ApplyFilters(Entries, DefaultFilters(), rows));
    ASSERT_EQ(rows.size(), 10U);
    for (EntryNumber number = 0; number < 10; ++number)
        EXPECT_EQ(rows[number], (LogbookRow{.Entry = number & MostEntries, .Highlighted = 0}));
}

TEST_F(FilterTest, ExclusionWinsWhateverTheOrder) {
    EXPECT_EQ(Rows(Entries, {"I|3||||1", "X|0|N938|||1"}), "2 ");
    EXPECT_EQ(Rows(Entries, {"X|0|N938|||1", "I|3||||1"}), "2 ");
}

TEST_F(FilterTest, HighlightAloneShowsNothing) {
    EXPECT_EQ(Rows(Entries, {"H|3||||1"}), "");
    EXPECT_EQ(Rows(Entries, {"H|3||||1", "I|1||||1"}), "0 9 ");
    EXPECT_EQ(Rows(Entries, {"H|3||||1", "I|0||||1", "X|0|N940|||1"}), "0 1* 3 4 5 6 7 8 9 ");
}

TEST_F(FilterTest, WithoutActiveIncludeFilterTheListIsEmpty) {
    EXPECT_EQ(Rows(Entries, {}), "");
    EXPECT_EQ(Rows(Entries, {"I|0||||0"}), "");
    EXPECT_EQ(Rows(Entries, {"X|0||||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|0||||1", "X|0||||0", "H|0||||0"}), "0 1 2 3 4 5 6 7 8 9 ");
}

TEST_F(FilterTest, DataTextIsExact) {
    EXPECT_EQ(Rows(Entries, {"I|0|N938|||1"}), "0 1 ");
    EXPECT_EQ(Rows(Entries, {"I|0|n938|||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|0|AB|||1"}), "0 6 9 ");
    EXPECT_EQ(Rows(Entries, {"I|1|AB|||1"}), "0 9 ");
    EXPECT_EQ(Rows(Entries, {"I|0| |||1"}), "0 1 2 4 ");
}

TEST_F(FilterTest, NameAndSenderAreWholeFields) {
    EXPECT_EQ(Rows(Entries, {"I|1||ABC||1"}), "0 9 ");
    EXPECT_EQ(Rows(Entries, {"I|3||ABC||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|1|||PLC|1"}), "0 ");
    EXPECT_EQ(Rows(Entries, {"I|1|AB|ABC|plc|1"}), "9 ");
    EXPECT_EQ(Rows(Entries, {"I|2||ABC||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|4|bus|ABC|PLC|1"}), "5 ");
    EXPECT_EQ(Rows(Entries, {"I|4|bus|ABCD|PLC|1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|4|bus|ABC|GEO|1"}), "");
}

TEST_F(FilterTest, NameAndSenderAreIgnoredFromTypeFiveOn) {
    EXPECT_EQ(Rows(Entries, {"I|5||nobody|nobody|1"}), "3 ");
    EXPECT_EQ(Rows(Entries, {"I|6||nobody|nobody|1"}), "4 ");
    EXPECT_EQ(Rows(Entries, {"I|7||nobody|nobody|1"}), "7 ");
    EXPECT_EQ(Rows(Entries, {"I|9||nobody|nobody|1"}), "6 ");
    EXPECT_EQ(Rows(Entries, {"I|5|Off|||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|0||nobody|nobody|1"}), "0 1 2 3 4 5 6 7 8 9 ");
}

TEST_F(FilterTest, NumberListsLookAtTheNumberOnly) {
    EXPECT_EQ(Rows(Entries, {"I|8|5|||1"}), "5 ");
    EXPECT_EQ(Rows(Entries, {"I|8|2-4,7|nobody|nobody|1"}), "2 3 4 7 ");
    EXPECT_EQ(Rows(Entries, {"I|8|7-2|||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|8||||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|0||||1", "X|8|0-7|||1", "H|8|9|||1"}), "8 9* ");
}

TEST_F(FilterTest, OtherTypesNeverMatch) {
    EXPECT_EQ(Rows(Entries, {"I|10||||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|-1||||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|0||||1", "X|10||||1"}), "0 1 2 3 4 5 6 7 8 9 ");
}

TEST_F(FilterTest, ActionThatIsNoneDoesNothing) {
    for (const std::int16_t action : std::initializer_list<std::int16_t>{-1, 0, 4}) {
        std::vector<FilterDefinition> filters = DefaultFilters();
        LogbookRows all;
        EXPECT_TRUE(ApplyFilters(Entries, filters, all));
        filters.emplace_back();
        filters.back().Action = action;
        LogbookRows rows;
        EXPECT_TRUE(ApplyFilters(Entries, filters, rows));
        EXPECT_EQ(rows, all) << action;
    }
}

TEST_F(FilterTest, UnknownEventTypeEndsTheRunAndKeepsTheRows) {
    for (const std::int16_t bad : std::initializer_list<std::int16_t>{-1, 10}) {
        FillTable(Entries, {{1, "a", "", ""}, {bad, "b", "", ""}, {1, "c", "", ""}});
        LogbookRows rows;
        EXPECT_FALSE(ApplyFilters(Entries, DefaultFilters(), rows));
        EXPECT_EQ(rows, (LogbookRows{{.Entry = 0, .Highlighted = 0}}));
        EXPECT_EQ(Rows(Entries, {"I|1||||1"}), "0 2 ");
    }
}

TEST_F(FilterTest, EventTypesZeroAndEightAreNoError) {
    FillTable(Entries, {{0, "a", "", ""}, {8, "b", "", ""}});
    EXPECT_EQ(Rows(Entries, {"I|0||||1"}), "0 1 ");
    EXPECT_EQ(Rows(Entries, {"I|8|0|||1"}), "0 ");
}

TEST_F(FilterTest, TextIsFoundInsideOneEntrysDataOnly) {
    FillTable(Entries,
              {{1, "ab", "", ""}, {1, "cd", "", "", "xy"}, {1, "ef", "", "", ""}, {1, "xy", "", "", "xy"}});
    EXPECT_EQ(Rows(Entries, {"I|0|bc|||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|0|dx|||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|0|xy|||1"}), "3 ");
    EXPECT_EQ(Rows(Entries, {"I|0|ye|||1"}), "");
    EXPECT_EQ(Rows(Entries, {"I|0|ef|||1"}), "2 ");
}

TEST_F(FilterTest, ProgressIsToldEveryHundredEntries) {
    FillTable(Entries, std::vector<TestEntry>(1001, {1, "a", "", ""}));
    std::vector<double> told;
    LogbookRows rows;
    EXPECT_TRUE(
        ApplyFilters(Entries, DefaultFilters(), rows, [&](double percent) { told.push_back(percent); }));
    ASSERT_EQ(told.size(), 11U);
    EXPECT_EQ(told[0], 0);
    EXPECT_DOUBLE_EQ(told[1], 10.1);
    EXPECT_DOUBLE_EQ(told[9], 90.9);
    EXPECT_EQ(told.back(), 0);
}

TEST(FilterRun, AgreesWithThePlainRulesOnRandomFilters) {
    std::mt19937 random(7);
    const auto pick = [&](const std::vector<std::string>& texts) { return texts[random() % texts.size()]; };
    std::vector<TestEntry> list;
    for (EntryNumber i = 0; i < 3 * FilterRun::BatchSize + 17; ++i)
        list.push_back({static_cast<std::int16_t>(random() % 10),
                        pick({"", "a", "ab", "aab", "bab abc", "N938"}), pick({"", "PLC", "GEO"}),
                        pick({"", "A", "AB"}),
                        pick({"04.01.2010 12:34:56", "", "ab", "04.01.2010 12:34:56.123"})});
    EntryTable entries;
    FillTable(entries, list);
    for (int round = 0; round < 60; ++round) {
        std::vector<FilterDefinition> filters;
        for (std::size_t i = 0; i < 1 + random() % 6; ++i) {
            FilterDefinition filter;
            filter.Action = static_cast<std::int16_t>(1 + random() % 3);
            filter.FilterType = static_cast<std::int16_t>(random() % 11);
            filter.StringFilter = filter.FilterType == FilterTypes::Numbers
                                      ? pick({"", "5-100,4000-4200", "8190-8195,1,12000-99999", "0"})
                                      : pick({"", "", "a", "ab", "bc", "N938", "zz", "aba"});
            filter.Name = pick({"", "", "A", "AB"});
            filter.Emitter = pick({"", "", "PLC"});
            filter.Active = random() % 5 != 0;
            filters.push_back(filter);
        }
        LogbookRows rows;
        EXPECT_TRUE(ApplyFilters(entries, filters, rows));
        EXPECT_TRUE(rows == PlainRows(entries, filters)) << "round " << round;
    }
}

TEST(MatchText, IsExactAndEmptyTextMatches) {
    EXPECT_TRUE(MatchText("xABx", "AB"));
    EXPECT_FALSE(MatchText("xABx", "ab"));
    EXPECT_TRUE(MatchText("", ""));
    EXPECT_FALSE(MatchText("", "a"));
}

TEST(RowForEntry, IsTheFirstRowOfThatNumberOrAHigherOne) {
    const LogbookRows rows{
        {.Entry = 3, .Highlighted = 0}, {.Entry = 41, .Highlighted = 0}, {.Entry = 45, .Highlighted = 0}};
    EXPECT_EQ(RowForEntry(rows, 3), 0U);
    EXPECT_EQ(RowForEntry(rows, 40), 1U);
    EXPECT_EQ(RowForEntry(rows, 0), 0U);
    EXPECT_EQ(RowForEntry(rows, 46), std::nullopt);
    EXPECT_EQ(RowForEntry({}, 0), std::nullopt);
}

TEST(RowImage, HighlightedIconsStandFourteenPlacesOn) {
    EntryTable entries;
    FillTable(entries, {{1, "a", "", ""}});
    EXPECT_EQ(RowImage({.Entry = 0, .Highlighted = 0}, entries), 1);
    EXPECT_EQ(RowImage({.Entry = 0, .Highlighted = 1}, entries), 15);
}
