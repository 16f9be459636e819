// SPDX-License-Identifier: MIT
#include "rows/EntryActions.h"

#include "filter/Filter.h"
#include "filter/FilterStorage.h"
#include "filter/FilterText.h"
#include "filter/FiltersFromEntries.h"
#include "settings/Registry.h"
#include "support/EntriesFrom.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace {

class EntryActions : public testing::Test {
  protected:
    EntryActions() {
        std::vector<TestEntry> entries(10, TestEntry{1, "data", "PLC", "ABC"});
        entries.push_back({2, "data", "PLC", "ABC"});
        FillTable(Entries, entries);
        Rows = RunFilters();
    }

    LogbookRows RunFilters() const {
        LogbookRows rows;
        EXPECT_TRUE(ApplyFilters(Entries, LoadFilters(Settings, {}).Filters, rows));
        return rows;
    }

    void Store(std::initializer_list<const char*> filters) {
        std::vector<FilterDefinition> definitions;
        for (const char* text : filters)
            EXPECT_TRUE(ParseFilter(text, definitions.emplace_back())) << text;
        SaveFilters(Settings, {definitions, {}}, "");
        Rows = RunFilters();
        Memory.Writes = 0;
    }

    std::vector<std::string> Loaded() const {
        std::vector<std::string> texts;
        for (const FilterDefinition& filter : LoadFilters(Settings, {}).Filters)
            texts.push_back(FormatFilter(filter));
        return texts;
    }

    void Remove(const RowRanges& selected) { RemoveFromList(Rows, RemoveFromList(Settings, Rows, selected)); }
    void Toggle(const RowRanges& selected) {
        ToggleHighlighting(Rows, ToggleHighlighting(Settings, Rows, selected));
    }

    EntryTable Entries;
    MemorySettings Memory;
    Registry Settings{Memory};
    LogbookRows Rows;
};

using Texts = std::vector<std::string>;

std::string Shown(const LogbookRows& rows) {
    std::string text;
    for (const LogbookRow& row : rows)
        text += std::to_string(row.Entry) + (row.Highlighted != 0 ? "* " : " ");
    return text;
}

} // namespace

TEST_F(EntryActions, RemovedRowsStayAway) {
    Remove({{2, 4}, {8, 8}});
    EXPECT_EQ(Shown(Rows), "0 1 5 6 7 9 10 ");
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "X|8|2-4,8|||1"}));
    EXPECT_EQ(Memory.Writes, 1);
    EXPECT_EQ(RunFilters(), Rows);
}

TEST_F(EntryActions, RowsAreRemovedInListOrder) {
    std::reverse(Rows.begin(), Rows.end()); // 10 9 8 7 6 5 4 3 2 1 0
    Remove({{1, 1}, {3, 3}, {5, 6}});       // 9 7 5 4
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "X|8|9,7,4-5|||1"}));
    EXPECT_EQ(Shown(Rows), "10 8 6 3 2 1 0 ");
}

TEST_F(EntryActions, ARowWhoseEntryIsInTheListAlreadyIsRemoved) {
    Store({"I|0||||1"});
    AddEntryToFilter(Settings, 3, FilterActions::Exclude);
    const auto stored = Memory.Values;
    Remove({{3, 3}});
    EXPECT_EQ(Shown(Rows), "0 1 2 4 5 6 7 8 9 10 ");
    EXPECT_EQ(Memory.Values, stored);
}

TEST_F(EntryActions, HighlightingIsToggledAndStays) {
    Toggle({{2, 5}});
    EXPECT_EQ(Shown(Rows), "0 1 2* 3* 4* 5* 6 7 8 9 10 ");
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|8|2-5|||1"}));
    EXPECT_EQ(RunFilters(), Rows);
    Memory.Writes = 0;
    Toggle({{4, 7}}); // plain and highlighted ones in one selection
    EXPECT_EQ(Memory.Writes, 1);
    EXPECT_EQ(Shown(Rows), "0 1 2* 3* 4 5 6* 7* 8 9 10 ");
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|8|2-3,6-7|||1"}));
    EXPECT_EQ(RunFilters(), Rows);
}

TEST_F(EntryActions, TheIconFollows) {
    const int plain = RowImage(Rows[2], Entries);
    Toggle({{2, 2}});
    EXPECT_EQ(RowImage(Rows[2], Entries), plain + 14);
    Toggle({{2, 2}});
    EXPECT_EQ(RowImage(Rows[2], Entries), plain);
}

TEST_F(EntryActions, ARowThatAnotherFilterHighlightsTurnsPlainUntilTheNextRun) {
    Store({"I|0||||1", "H|1||||1", "H|8|10|||1"});
    Toggle({{3, 3}});
    EXPECT_EQ(Shown(Rows), "0* 1* 2* 3 4* 5* 6* 7* 8* 9* 10* ");
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|1||||1", "H|8|10|||1"}));
    EXPECT_EQ(Shown(RunFilters()), "0* 1* 2* 3* 4* 5* 6* 7* 8* 9* 10* ");
}

TEST_F(EntryActions, WithoutAFilterOfHighlightedNumbersSuchARowDoesNotChange) {
    Store({"I|0||||1", "H|1||||1", "H|8|3|||0"});
    const auto stored = Memory.Values;
    EXPECT_EQ(ToggleHighlighting(Settings, Rows, {{2, 4}}), RowRanges());
    EXPECT_EQ(Memory.Values, stored);
    EXPECT_EQ(Memory.Writes, 0);
}

TEST_F(EntryActions, APlainRowMakesTheFilterForTheRowsAfterIt) {
    Store({"I|0||||1", "H|1||||1"});
    std::swap(Rows[1], Rows[10]); // 0* 10 2* ...
    EXPECT_EQ(ToggleHighlighting(Settings, Rows, {{0, 3}}), (RowRanges{{1, 3}}));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|1||||1", "H|8|10|||1"}));
}

TEST_F(EntryActions, NothingSelectedIsNothingDone) {
    EXPECT_EQ(RemoveFromList(Settings, Rows, {}), RowRanges());
    EXPECT_EQ(ToggleHighlighting(Settings, Rows, {}), RowRanges());
    EXPECT_EQ(Memory.Writes, 0);
}

TEST_F(EntryActions, ManyRowsGiveTheSameFiltersAsOneByOne) {
    LogbookRows rows;
    RowRanges selected;
    for (EntryNumber i = 0; i < 700; ++i) {
        rows.push_back({.Entry = (i * 7919 % 5003) & MostEntries, .Highlighted = i % 5 == 0});
        if (i % 3 != 0)
            selected.push_back({i, i});
    }
    MemorySettings otherMemory;
    Registry other(otherMemory);
    RowRanges expected;
    for (const RowRange& range : selected) {
        const LogbookRow& row = rows[range.First];
        if (row.Highlighted != 0 ? RemoveEntryFromFilter(other, row.Entry, FilterActions::Highlight)
                                 : AddEntryToFilter(other, row.Entry, FilterActions::Highlight))
            expected.push_back(range);
    }
    EXPECT_EQ(Joined(ToggleHighlighting(Settings, rows, selected)), Joined(expected));
    EXPECT_EQ(Memory.Values, otherMemory.Values);
    for (const RowRange& range : selected)
        AddEntryToFilter(other, rows[range.First].Entry, FilterActions::Exclude);
    EXPECT_EQ(RemoveFromList(Settings, rows, selected), Joined(selected));
    EXPECT_EQ(Memory.Values, otherMemory.Values);
    EXPECT_EQ(Memory.Writes, 2);
}

TEST_F(EntryActions, OnlyWhatLiesBetweenIsKeptByOneFilter) {
    EXPECT_TRUE(KeepBetween(Settings, Rows, {{2, 2}, {5, 6}}));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "X|8|0-1,7-2147483647|||1"}));
    EXPECT_EQ(Memory.Writes, 1);
    EXPECT_EQ(RunFilters(), (LogbookRows{{2, 0}, {3, 0}, {4, 0}, {5, 0}, {6, 0}}));

    // By the numbers of the entries, in whatever order the rows stand.
    Store({"I|0||||1", "X|8|3|||1", "H|1||||1"});
    EXPECT_TRUE(KeepBetween(Settings, {{8, 0}, {0, 0}, {4, 0}}, {{1, 2}}));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "X|8|3|||1", "H|1||||1", "X|8|5-2147483647|||1"}));
    EXPECT_EQ(RunFilters().size(), 4U);
    Store({"I|0||||1"});
    EXPECT_TRUE(KeepBetween(Settings, Rows, {{1, 1}}));
    EXPECT_EQ(Loaded()[1], "X|8|0,2-2147483647|||1");

    Store({"I|0||||1"});
    EXPECT_FALSE(KeepBetween(Settings, Rows, {}));
    EXPECT_EQ(Memory.Writes, 0);
}
