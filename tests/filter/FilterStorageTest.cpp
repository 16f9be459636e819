// SPDX-License-Identifier: MIT
#include "filter/FilterStorage.h"

#include "settings/Registry.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace {

class FilterStorage : public testing::Test {
  protected:
    std::string StoredText(const std::string& name) const {
        const auto value = Store.Read("Software\\VELTRANDOR\\Qorvix\\Logbook\\Filters", name);
        return value ? std::get<std::string>(*value) : "(none)";
    }
    std::int32_t StoredNumber(const std::string& name) const {
        const auto value = Store.Read("Software\\VELTRANDOR\\Qorvix\\Logbook\\Filters", name);
        return value ? std::get<std::int32_t>(*value) : -1;
    }
    void StoreText(const char* name, const char* text) {
        Settings.WriteFilterSetting(name, std::string(text), SettingType::Text);
    }
    void StoreNumber(const char* name, std::int32_t number) {
        Settings.WriteFilterSetting(name, number, SettingType::Integer);
    }

    MemorySettings Store;
    Registry Settings{Store};
};

const FilterDefinition Errors{FilterActions::Include, 3, "", "", "", true};
const FilterDefinition NoN938{FilterActions::Exclude, 0, "N938", "", "", true};

} // namespace

TEST_F(FilterStorage, EmptyStoreGivesTheDefaults) {
    const FilterLists lists = LoadFilters(Settings, {Language::German});
    EXPECT_EQ(lists.Filters, DefaultFilters());
    EXPECT_EQ(lists.StringFilters, DefaultStringFilters({Language::German}));
}

TEST_F(FilterStorage, ListsComeBack) {
    SaveFilters(Settings, {{Errors, NoN938}, {{"N938", "keys"}}}, "/home/user/filters");
    EXPECT_EQ(StoredText("Filter1"), "I|3||||1");
    EXPECT_EQ(StoredText("Filter2"), "X|0|N938|||1");
    EXPECT_EQ(StoredNumber("FilterCount"), 2);
    EXPECT_EQ(StoredText("StringFilter1"), "N938|keys|1");
    EXPECT_EQ(StoredNumber("SpecialFilterCount"), 1);
    EXPECT_EQ(StoredText("InitFilterDir"), "/home/user/filters");
    const FilterLists lists = LoadFilters(Settings, {});
    EXPECT_EQ(lists.Filters, (std::vector{Errors, NoN938}));
    EXPECT_EQ(lists.StringFilters, (std::vector<StringFilter>{{"N938", "keys"}, {}}));
}

TEST_F(FilterStorage, WithoutAFolderTheStoredOneStays) {
    SaveFilters(Settings, {{Errors}, {}}, "");
    EXPECT_EQ(StoredText("InitFilterDir"), "(none)");
    EXPECT_EQ(FilterFolder(Settings, "/program/"), "/program/");
    SaveFilters(Settings, {{Errors}, {}}, "/filters/");
    SaveFilters(Settings, {{NoN938}, {}}, "");
    EXPECT_EQ(StoredText("InitFilterDir"), "/filters/");
    EXPECT_EQ(FilterFolder(Settings, "/program/"), "/filters/");
    // What an earlier version stored where there was none.
    StoreText("InitFilterDir", "");
    EXPECT_EQ(FilterFolder(Settings, "/program/"), "/program/");
}

TEST_F(FilterStorage, SavingIsOneWrite) {
    SaveFilters(Settings, {std::vector<FilterDefinition>(50, Errors), {}}, "");
    EXPECT_EQ(Store.Writes, 1);
}

TEST_F(FilterStorage, ShorterListLeavesNothingOfALongerOne) {
    SaveFilters(Settings, {std::vector<FilterDefinition>(5, Errors), {}}, "");
    SaveFilters(Settings, {std::vector<FilterDefinition>(2, NoN938), {}}, "");
    EXPECT_EQ(StoredNumber("FilterCount"), 2);
    EXPECT_EQ(StoredText("Filter2"), "X|0|N938|||1");
    for (const char* name : {"Filter3", "Filter4", "Filter5"})
        EXPECT_EQ(StoredText(name), "(none)");
}

TEST_F(FilterStorage, OneBadFilterReplacesTheWholeList) {
    StoreNumber("FilterCount", 2);
    StoreText("Filter1", "I|3||||1");
    StoreText("Filter2", "Q|0|||1");
    EXPECT_EQ(LoadFilters(Settings, {}).Filters, DefaultFilters());
}

TEST_F(FilterStorage, MissingFilterReplacesTheWholeList) {
    StoreNumber("FilterCount", 2147483647);
    StoreText("Filter1", "I|3||||1");
    EXPECT_EQ(LoadFilters(Settings, {}).Filters, DefaultFilters());
}

TEST_F(FilterStorage, CountBelowOneGivesTheDefaults) {
    for (const std::int32_t count : {0, -1, -2147483647}) {
        StoreNumber("FilterCount", count);
        StoreNumber("SpecialFilterCount", count);
        EXPECT_EQ(LoadFilters(Settings, {}).Filters, DefaultFilters());
        EXPECT_EQ(LoadFilters(Settings, {}).StringFilters, DefaultStringFilters({}));
    }
}

TEST_F(FilterStorage, OlderFormLoadsAsActive) {
    StoreNumber("FilterCount", 1);
    StoreText("Filter1", "I|3|abc|NAME|SENDER");
    EXPECT_EQ(LoadFilters(Settings, {}).Filters,
              (std::vector<FilterDefinition>{{FilterActions::Include, 3, "abc", "NAME", "SENDER", true}}));
}

TEST_F(FilterStorage, ExtraEmptyStringFilterIsSavedToo) {
    StoreNumber("SpecialFilterCount", 2);
    StoreText("StringFilter1", "a|b|1");
    StoreText("StringFilter2", "c|d|1");
    const FilterLists lists = LoadFilters(Settings, {});
    EXPECT_EQ(lists.StringFilters, (std::vector<StringFilter>{{"a", "b"}, {"c", "d"}, {}}));
    SaveFilters(Settings, lists, "");
    EXPECT_EQ(StoredNumber("SpecialFilterCount"), 3);
    EXPECT_EQ(StoredText("StringFilter3"), "||1");
}

TEST_F(FilterStorage, MissingStringFiltersReadAsEmpty) {
    StoreNumber("SpecialFilterCount", 2);
    EXPECT_EQ(LoadFilters(Settings, {}).StringFilters, (std::vector<StringFilter>{{}, {}, {}}));
    StoreNumber("SpecialFilterCount", 2147483647);
    EXPECT_EQ(LoadFilters(Settings, {}).StringFilters.size(), 1001U);
}

TEST_F(FilterStorage, SeparatorInATextIsAnObstacle) {
    EXPECT_EQ(ObstacleOf(NoN938), StorageObstacle::None);
    for (const FilterDefinition& filter :
         {FilterDefinition{1, 3, "a|b", "", "", true}, FilterDefinition{1, 3, "", "a|", "", true},
          FilterDefinition{1, 3, "", "", "|", true}}) {
        EXPECT_EQ(ObstacleOf(filter), StorageObstacle::Separator);
        SaveFilters(Settings, {{Errors, filter}, {}}, "");
        EXPECT_EQ(LoadFilters(Settings, {}).Filters, DefaultFilters());
    }
}

TEST_F(FilterStorage, TextFormBeyondALongTextIsAnObstacle) {
    // Without its flag where it is active, with an empty one where it is not.
    for (const auto& [others, active] : {std::pair("I|3|||", true), std::pair("I|3||||", false)}) {
        FilterDefinition filter{FilterActions::Include, 3, "", "", "", active};
        for (std::size_t i = std::string(others).size(); i < Registry::LongestText; ++i)
            filter.StringFilter += "ä";
        EXPECT_EQ(ObstacleOf(filter), StorageObstacle::None);
        SaveFilters(Settings, {{filter}, {}}, "");
        EXPECT_EQ(LoadFilters(Settings, {}).Filters, std::vector{filter});

        filter.StringFilter += "a";
        EXPECT_EQ(ObstacleOf(filter), StorageObstacle::TooLong);
        SaveFilters(Settings, {{filter}, {}}, "");
        EXPECT_EQ(LoadFilters(Settings, {}).Filters, DefaultFilters());
    }
}

TEST_F(FilterStorage, FiltersOfAllFormsComeBackAfterSaving) {
    // Their texts are as long as can be read; with a flag some would be longer.
    for (const std::string end : {"||", "|||", "|||0", "|||1", "|||x", "|NAME|SENDER"})
        for (const std::size_t length : {1020U, 1021U, 1022U, 1023U}) {
            const std::string begin = "X|0008|";
            const std::string text = begin + std::string(length - begin.size() - end.size(), '7') + end;
            StoreNumber("FilterCount", 2);
            StoreText("Filter1", "I|3||||1");
            StoreText("Filter2", text.c_str());
            const FilterLists lists = LoadFilters(Settings, {});
            ASSERT_EQ(lists.Filters.size(), 2U);
            SaveFilters(Settings, lists, "");
            EXPECT_EQ(LoadFilters(Settings, {}).Filters, lists.Filters) << length << " with " << end;
        }
}

TEST_F(FilterStorage, TheUsualFormIsStoredWhereItFits) {
    const std::string text = "X|8|" + std::string(1015, '7') + "||";
    StoreNumber("FilterCount", 1);
    StoreText("Filter1", text.c_str());
    SaveFilters(Settings, LoadFilters(Settings, {}), "");
    EXPECT_EQ(StoredText("Filter1"), text + "|1");
    const std::string longer = "X|8|" + std::string(1016, '7') + "||";
    StoreText("Filter1", longer.c_str());
    SaveFilters(Settings, LoadFilters(Settings, {}), "");
    EXPECT_EQ(StoredText("Filter1"), longer);
}

TEST_F(FilterStorage, StringFiltersHaveTheSameObstacles) {
    EXPECT_EQ(ObstacleOf(StringFilter{"N938", "keys"}), StorageObstacle::None);
    EXPECT_EQ(ObstacleOf(StringFilter{"N|938", "keys"}), StorageObstacle::Separator);
    EXPECT_EQ(ObstacleOf(StringFilter{"N938", "keys|"}), StorageObstacle::Separator);
    const std::string longest(Registry::LongestText - std::string("|keys").size(), 'a');
    EXPECT_EQ(ObstacleOf(StringFilter{longest, "keys"}), StorageObstacle::None);
    EXPECT_EQ(ObstacleOf(StringFilter{longest + "a", "keys"}), StorageObstacle::TooLong);
}

TEST_F(FilterStorage, StringFiltersOfAllFormsComeBackAfterSaving) {
    for (const std::string end : {"", "|", "|keys", "|keys|", "|keys|1", "||1", "|keys|1|more"})
        for (const std::size_t length : {1020U, 1021U, 1022U, 1023U}) {
            StoreNumber("SpecialFilterCount", 1);
            StoreText("StringFilter1", (std::string(length - end.size(), 'a') + end).c_str());
            FilterLists lists = LoadFilters(Settings, {});
            ASSERT_EQ(lists.StringFilters.size(), 2U);
            ASSERT_GE(lists.StringFilters[0].FilterString.size(), 1000U);
            SaveFilters(Settings, lists, "");
            lists.StringFilters.emplace_back();
            EXPECT_EQ(LoadFilters(Settings, {}).StringFilters, lists.StringFilters)
                << length << " with " << end;
        }
}
