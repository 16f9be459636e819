// SPDX-License-Identifier: MIT
#include "filter/FiltersFromEntriesTest.h"

namespace {

using FilterActions::Exclude;
using FilterActions::Highlight;

class FiltersFromEntries : public FiltersFromEntriesTest {};

} // namespace

TEST_F(FiltersFromEntries, EntriesRemovedOneByOneMakeOneFilter) {
    Store({"I|0||||1"});
    for (const EntryNumber number : {7U, 8U, 6U})
        EXPECT_TRUE(AddEntryToFilter(Settings, number, Exclude));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "X|8|6-8|||1"}));
}

TEST_F(FiltersFromEntries, AnEntryThatIsInTheListChangesNothing) {
    Store({"I|0||||1", "X|8|6-8|||1"});
    const auto before = Memory.Values;
    EXPECT_TRUE(AddEntryToFilter(Settings, 7, Exclude));
    EXPECT_EQ(Memory.Values, before);
}

TEST_F(FiltersFromEntries, WithoutAnActiveNumberFilterANewOneIsAppended) {
    Store({"X|8|7|||0", "I|0||||1", "X|3|7|||1", "H|8|7|||1"});
    EXPECT_TRUE(AddEntryToFilter(Settings, 7, Exclude));
    EXPECT_EQ(Loaded(), (Texts{"X|8|7|||0", "I|0||||1", "X|3|7|||1", "H|8|7|||1", "X|8|7|||1"}));
    EXPECT_EQ(Settings.ReadFilterSettingLong("FilterCount", 0), 5);
    EXPECT_EQ(Memory.Writes, 1);
}

TEST_F(FiltersFromEntries, TheFirstActiveOneOfTheActionIsUsed) {
    Store({"I|8|1|||1", "X|8|10|||0", "H|8|20|||1", "X|8|30|NAME|SENDER|1", "X|8|40|||1", "H|8|50|||1"});
    AddEntryToFilter(Settings, 31, Exclude);
    AddEntryToFilter(Settings, 40, Exclude);
    AddEntryToFilter(Settings, 21, Highlight);
    RemoveEntryFromFilter(Settings, 20, Highlight);
    EXPECT_EQ(Loaded(), (Texts{"I|8|1|||1", "X|8|10|||0", "H|8|21|||1", "X|8|30-31,40|NAME|SENDER|1",
                               "X|8|40|||1", "H|8|50|||1"}));
}

TEST_F(FiltersFromEntries, OnlyTheChangedValuesAreWritten) {
    // The old form of the first filter and values of others show what is written anew.
    Store({"I|0|||", "X|8| 5 ,x|||1"});
    Settings.WriteFilterSetting("InitFilterDir", std::string("/filters"), SettingType::Text);
    Settings.WriteFilterSetting("SpecialFilterCount", 7, SettingType::Integer);
    Settings.WriteFilterSetting("Filter9", std::string("left over"), SettingType::Text);
    auto expected = Memory.Values;
    const std::string key = "Software\\VELTRANDOR\\Qorvix\\Logbook\\Filters";

    AddEntryToFilter(Settings, 9, Exclude);
    expected[{key, "Filter2"}] = std::string("X|8| 5 ,x,9|||1");
    EXPECT_EQ(Memory.Values, expected);
    AddEntryToFilter(Settings, 9, Highlight);
    expected[{key, "Filter3"}] = std::string("H|8|9|||1");
    expected[{key, "FilterCount"}] = 3;
    EXPECT_EQ(Memory.Values, expected);
    RemoveEntryFromFilter(Settings, 9, Highlight);
    expected[{key, "Filter3"}] = std::string("H|8||||1");
    EXPECT_EQ(Memory.Values, expected);
}

TEST_F(FiltersFromEntries, NumberFilterThatIsNotChangedIsNotWritten) {
    // Written anew, the old form of the second filter would get a flag.
    Store({"X|8|5|||1", "X|8|9||"});
    auto expected = Memory.Values;
    AddEntryToFilter(Settings, 7, Exclude);
    expected[{"Software\\VELTRANDOR\\Qorvix\\Logbook\\Filters", "Filter1"}] = std::string("X|8|5,7|||1");
    EXPECT_EQ(Memory.Values, expected);
}

TEST_F(FiltersFromEntries, AnEmptyListTakesNumbersAgain) {
    Store({"X|8||||1"});
    AddEntryToFilter(Settings, 5, Exclude);
    RemoveEntryFromFilter(Settings, 5, Exclude);
    EXPECT_EQ(Loaded(), (Texts{"X|8||||1"}));
    AddEntryToFilter(Settings, 6, Exclude);
    EXPECT_EQ(Loaded(), (Texts{"X|8|6|||1"}));
}

TEST_F(FiltersFromEntries, RemovingTellsWhetherThereIsAFilter) {
    Store({"I|0||||1", "H|8|5|||0", "H|3||||1"});
    EXPECT_FALSE(RemoveEntryFromFilter(Settings, 5, Highlight));
    EXPECT_EQ(Memory.Writes, 0);
    Store({"I|0||||1", "H|8|5|||1"});
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 6, Highlight));
    EXPECT_EQ(Memory.Writes, 1) << "it is written back";
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|8|5|||1"}));
}

TEST_F(FiltersFromEntries, TheFirstRemovalOfAllKeepsTheDefaultFilter) {
    EXPECT_TRUE(AddEntryToFilter(Settings, 7, Exclude));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "X|8|7|||1"}));
    EXPECT_TRUE(AddEntryToFilter(Settings, 7, Highlight));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "X|8|7|||1", "H|8|7|||1"}));
    EXPECT_EQ(LoadFilters(Settings, {}).StringFilters, DefaultStringFilters({}));
}

TEST_F(FiltersFromEntries, WithNothingStoredThereIsNothingToRemoveFrom) {
    EXPECT_FALSE(RemoveEntryFromFilter(Settings, 7, Highlight));
    EXPECT_TRUE(Memory.Values.empty());
}

TEST_F(FiltersFromEntries, ADamagedListIsTheDefaultListHereToo) {
    for (const Texts& damaged :
         {Texts{"X|8|1|||1", "Q|0|||1", "X|8|3|||1"}, Texts{"I|0|||1", "I|0|a|b|c|1|x"},
          Texts{"X|8|" + std::string(2000, '1') + "|||1"}}) {
        Store(damaged);
        ASSERT_EQ(Loaded(), (Texts{"I|0||||1"}));
        EXPECT_FALSE(RemoveEntryFromFilter(Settings, 1, Exclude));
        EXPECT_EQ(Memory.Writes, 0);
        EXPECT_TRUE(AddEntryToFilter(Settings, 7, Exclude));
        EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "X|8|7|||1"}));
    }
}

TEST_F(FiltersFromEntries, WhatUsersTypeAsANumberListStays) {
    const std::string typed = "7-2, x ,,--,9999999999999,äöü 1 - 2 - 3,;";
    Store({"X|8|" + typed + "|||1"});
    AddEntryToFilter(Settings, 6, Exclude);
    RemoveEntryFromFilter(Settings, 6, Exclude);
    AddEntryToFilter(Settings, 3, Exclude);
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + typed + ",3|||1"}));
}

TEST_F(FiltersFromEntries, NoChangeIsNoWrite) {
    NumberFilters filters(Settings, Exclude);
    filters.Write();
    EXPECT_EQ(Memory.Writes, 0);
}
