// SPDX-License-Identifier: MIT
#include "filter/FiltersFromEntries.h"

#include "filter/FilterText.h"
#include "settings/JsonSettings.h"
#include "settings/Registry.h"
#include "support/MemorySettings.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace {

using FilterActions::Exclude;
using FilterActions::Highlight;
using Texts = std::vector<std::string>;

class FiltersFromEntries : public testing::Test {
  protected:
    // Stores filters in their text form.
    void Store(const Texts& filters) {
        for (std::size_t i = 0; i < filters.size(); ++i)
            Settings.WriteFilterSetting("Filter" + std::to_string(i + 1), filters[i], SettingType::Text);
        Settings.WriteFilterSetting("FilterCount", static_cast<std::int32_t>(filters.size()),
                                    SettingType::Integer);
        Memory.Writes = 0;
    }

    // The filters as the next filter run reads them.
    Texts Loaded() const {
        Texts texts;
        for (const FilterDefinition& filter : LoadFilters(Settings, {}).Filters)
            texts.push_back(FormatFilter(filter));
        return texts;
    }

    MemorySettings Memory;
    Registry Settings{Memory};
};

// The stored values without filters at the end that highlight no number.
decltype(MemorySettings::Values) WithoutEmptyFilters(MemorySettings& memory) {
    Registry settings(memory);
    std::int32_t count = settings.ReadFilterSettingLong("FilterCount", 0);
    const auto name = [&] { return "Filter" + std::to_string(count); };
    while (settings.ReadFilterSettingString(name(), "") == "H|8||||1") {
        memory.Values.erase({std::string(ApplicationKey) + "\\" + std::string(SubKeys::Filters), name()});
        --count;
    }
    settings.WriteFilterSetting("FilterCount", count, SettingType::Integer);
    return memory.Values;
}

// A list of numbers with gaps between them, as long as it can get within so many characters.
std::string ListOfLength(std::size_t length) {
    std::string list = "100";
    for (EntryNumber number = 102; list.size() + 4 <= length; number += 2)
        list += "," + std::to_string(number);
    return list + std::string(length - list.size(), ' ');
}

std::set<EntryNumber> Numbers(const Texts& filters, char action) {
    std::set<EntryNumber> numbers;
    for (const std::string& text : filters) {
        FilterDefinition filter;
        if (text[0] != action || !ParseFilter(text, filter) || filter.FilterType != FilterTypes::Numbers)
            continue;
        for (const NumberRange& range : ParseNumberList(filter.StringFilter))
            for (EntryNumber number = range.First; number <= range.Last; ++number)
                numbers.insert(number);
    }
    return numbers;
}

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

TEST_F(FiltersFromEntries, ANumberWithoutRoomGoesToANewFilter) {
    const std::string full = "X|8|" + ListOfLength(1015) + "|||1"; // 1,023 characters in all
    Store({"I|0||||1", full});
    EXPECT_TRUE(AddEntryToFilter(Settings, 5000, Exclude));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", full, "X|8|5000|||1"}));
    EXPECT_TRUE(AddEntryToFilter(Settings, 5002, Exclude));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", full, "X|8|5000,5002|||1"}));
    EXPECT_TRUE(AddEntryToFilter(Settings, 100, Exclude)); // which the first one holds
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", full, "X|8|5000,5002|||1"}));
}

TEST_F(FiltersFromEntries, APartThatHasNoRoomAnyMoreMovesOn) {
    const std::string list = ListOfLength(1011);
    Store({"X|8|" + list + ",900|||1"}); // 1,023 characters in all
    EXPECT_TRUE(AddEntryToFilter(Settings, 5000, Exclude));
    EXPECT_TRUE(AddEntryToFilter(Settings, 99, Exclude)); // makes the first part "99-100"
    EXPECT_EQ(Loaded(), (Texts{"X|8|99-" + list + "|||1", "X|8|900,5000|||1"}));
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 99, Exclude));
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + list + ",900|||1", "X|8|5000|||1"}));
}

TEST_F(FiltersFromEntries, TheLastPlaceOfAFilterIsUsed) {
    const std::string list = ListOfLength(1012);
    Store({"X|8|" + list + "|||1"});
    AddEntryToFilter(Settings, 10, Exclude); // three more characters
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + list + ",10|||1"}));
    Store({"X|8|" + list + " |||1"});
    AddEntryToFilter(Settings, 10, Exclude);
    AddEntryToFilter(Settings, 5, Exclude); // stays behind the other, though there is room for it
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + list + " |||1", "X|8|10,5|||1"}));
}

TEST_F(FiltersFromEntries, ASecondFilterIsAListOfItsOwn) {
    Store({"I|0||||1", "H|8|5|||1", "H|8|30-40|||1"});
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 35, Highlight));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|8|5|||1", "H|8|30-40|||1"}));
    EXPECT_TRUE(AddEntryToFilter(Settings, 29, Highlight));
    EXPECT_TRUE(AddEntryToFilter(Settings, 35, Highlight));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|8|5,29,35|||1", "H|8|30-40|||1"}));
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 35, Highlight));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|8|5,29|||1", "H|8|30-40|||1"}));
}

TEST_F(FiltersFromEntries, AFilterGoesOnInOneWhoseBeginningItHasNoRoomFor) {
    for (const int missing : {0, 1}) {
        // "30-40" takes 6 more characters.
        const std::string first = ListOfLength(static_cast<std::size_t>(1015 - 6 + missing));
        Store({"H|8|" + first + "|||1", "H|8|30-40,50|||1"});
        EXPECT_TRUE(RemoveEntryFromFilter(Settings, 35, Highlight));
        EXPECT_EQ(Loaded(), (Texts{"H|8|" + first + "|||1",
                                   missing != 0 ? "H|8|30-34,36-40,50|||1" : "H|8|30-40,50|||1"}));
        Store({"H|8|" + first + "|||1", "H|8|30-40,50|||1"});
        EXPECT_TRUE(AddEntryToFilter(Settings, 8000000, Highlight)); // also without room in the first
        Texts expected = {"H|8|" + first + "|||1", "H|8|30-40,50,8000000|||1"};
        if (missing == 0)
            expected = {"H|8|" + first + "|||1", "H|8|30-40,50|||1", "H|8|8000000|||1"};
        EXPECT_EQ(Loaded(), expected);
        EXPECT_TRUE(RemoveEntryFromFilter(Settings, 8000000, Highlight)); // found again, over the other one
        expected.back() = missing != 0 ? "H|8|30-40,50|||1" : "H|8||||1";
        EXPECT_EQ(Loaded(), expected);
        Settings.DeleteFilterKey();
    }
}

TEST_F(FiltersFromEntries, AFilterWithANameOrSenderGoesOnWithNoOther) {
    const std::string full = "X|8|" + ListOfLength(1015) + "|||1";
    const Texts before = {full, "X|8|5000|NAME||1", "X|8|5000||SENDER|1", "X|8||NAME||1"};
    Store(before);
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 5000, Exclude));
    EXPECT_EQ(Loaded(), before);
    EXPECT_TRUE(AddEntryToFilter(Settings, 5000, Exclude));
    EXPECT_EQ(Loaded(), (Texts{before[0], before[1], before[2], before[3], "X|8|5000|||1"}));
}

TEST_F(FiltersFromEntries, WhatStandsBehindMovesUpWhenNumbersAreTakenOut) {
    // Three filters: numbers of 4 digits, 203 in each, with commas 1,014 characters.
    NumberFilters filters(Settings, Highlight);
    for (EntryNumber number = 0; number < 500; ++number)
        filters.Add(1000 + 2 * number);
    filters.Write();
    const auto list = [](EntryNumber first, EntryNumber last) {
        std::string text;
        for (EntryNumber number = first; number <= last; ++number)
            text += (number == first ? "" : ",") + std::to_string(1000 + 2 * number);
        return "H|8|" + text + "|||1";
    };
    ASSERT_EQ(Loaded(), (Texts{"I|0||||1", list(0, 202), list(203, 405), list(406, 499)}));

    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 1000, Highlight)); // of the first
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", list(1, 203), list(204, 406), list(407, 499)}));
    for (EntryNumber number = 1; number < 95; ++number)
        EXPECT_TRUE(RemoveEntryFromFilter(Settings, 1000 + 2 * number, Highlight));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", list(95, 297), list(298, 499), "H|8||||1"}));
    for (EntryNumber number = 297; number < 500; ++number) // the last of the first, and all of the second
        EXPECT_TRUE(RemoveEntryFromFilter(Settings, 1000 + 2 * number, Highlight));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", list(95, 296), "H|8||||1", "H|8||||1"}));

    // The empty ones are used before a new one is made.
    for (EntryNumber number = 297; number < 502; ++number)
        EXPECT_TRUE(AddEntryToFilter(Settings, 1000 + 2 * number, Highlight));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", list(95, 297), list(298, 500), list(501, 501)}));
}

TEST_F(FiltersFromEntries, OnlyChangedFiltersOfALongListAreWrittenBesidesTheFirst) {
    const std::string full = "H|8|" + ListOfLength(1015) + "|||1";
    Store({full, "H|8|" + ListOfLength(1015) + "||", "H|8|5000,5002|||1"}); // the second in the older form
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 5002, Highlight));
    EXPECT_EQ(Settings.ReadFilterSettingString("Filter2", ""), "H|8|" + ListOfLength(1015) + "||");
    EXPECT_EQ(Settings.ReadFilterSettingString("Filter3", ""), "H|8|5000|||1");
    EXPECT_EQ(Memory.Writes, 1);
}

TEST_F(FiltersFromEntries, ARangeGrowsInAFilterThatIsFull) {
    const std::string rest = "," + ListOfLength(1010);
    Store({"X|8|2-4" + rest.substr(0, 1012) + "|||1"});
    AddEntryToFilter(Settings, 5, Exclude);
    EXPECT_EQ(Loaded(), (Texts{"X|8|2-5" + rest + "|||1"}));
}

TEST_F(FiltersFromEntries, NameAndSenderTakeRoomToo) {
    const std::string list = ListOfLength(1000);
    Store({"X|8|" + list + "|NAME|SEÄDER890€|1"});
    AddEntryToFilter(Settings, 5, Exclude);
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + list + "|NAME|SEÄDER890€|1", "X|8|5|||1"}));
    Store({"X|8|" + list + "|NAME|SEÄDER8|1"});
    AddEntryToFilter(Settings, 5, Exclude);
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + list + ",5|NAME|SEÄDER8|1"})) << "characters count, not bytes";
}

TEST_F(FiltersFromEntries, TheListGoesOnInFiltersThatAreThereBeforeANewOne) {
    const std::string full = "H|8|" + ListOfLength(1015) + "|||1";
    Store({full, "X|8|1|||1", "H|8|2|||0", full, "H|8|3|||1"});
    AddEntryToFilter(Settings, 5000, Highlight);
    EXPECT_EQ(Loaded(), (Texts{full, "X|8|1|||1", "H|8|2|||0", full, "H|8|3,5000|||1"}));
}

TEST_F(FiltersFromEntries, ANumberIsTakenOutOfEachFilterOfALongList) {
    const std::string full = "H|8|" + ListOfLength(1010) + ",5";
    Store({full + "   |||1", "X|8|5|||1", "H|8|5|||0", "H|8|400-600,4-6|||1"});
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 5, Highlight));
    EXPECT_EQ(Loaded(),
              (Texts{"H|8|" + ListOfLength(1010) + "|||1", "X|8|5|||1", "H|8|5|||0", "H|8|400-600,4,6|||1"}));
}

TEST_F(FiltersFromEntries, WhatARemovalHasNoRoomForMovesOn) {
    const std::string rest = ListOfLength(1010);
    Store({"H|8|4-90," + rest + "|||1"});
    ASSERT_EQ(Loaded().front().size(), 1023U);
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 50, Highlight)); // 4-49,51-90 is longer
    const Texts loaded = Loaded();
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_TRUE(loaded[0].starts_with("H|8|4-49,51-90,100,"));
    EXPECT_LE(loaded[0].size(), 1023U);
    std::set<EntryNumber> expected = Numbers({"H|8|4-90," + rest + "|||1"}, 'H');
    expected.erase(50);
    EXPECT_EQ(Numbers(loaded, 'H'), expected);
}

TEST_F(FiltersFromEntries, AnOlderFilterThatIsTooLongInTheNewFormStays) {
    const std::string old = "X|8|" + ListOfLength(1017) + "||"; // 1,023 characters; the new form has 1,025
    Store({"I|0||||1", old});
    const std::string before = Loaded()[1];
    EXPECT_TRUE(AddEntryToFilter(Settings, 100, Exclude));
    EXPECT_EQ(Settings.ReadFilterSettingString("Filter2", ""), old);
    EXPECT_TRUE(AddEntryToFilter(Settings, 5, Exclude));
    std::set<EntryNumber> expected = Numbers({before}, 'X');
    expected.insert(5);
    EXPECT_EQ(Numbers(Loaded(), 'X'), expected); // the new form has no room for the last number
    EXPECT_EQ(Loaded()[2], "X|8|" + before.substr(before.rfind(',') + 1, 3 + 2) + ",5|||1");
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 100, Exclude));
    expected.erase(100);
    expected.insert(5);
    EXPECT_EQ(Numbers(Loaded(), 'X'), expected);
}

TEST_F(FiltersFromEntries, WhatUsersTypeAsANumberListStays) {
    const std::string typed = "7-2, x ,,--,9999999999999,äöü 1 - 2 - 3,;";
    Store({"X|8|" + typed + "|||1"});
    AddEntryToFilter(Settings, 6, Exclude);
    RemoveEntryFromFilter(Settings, 6, Exclude);
    AddEntryToFilter(Settings, 3, Exclude);
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + typed + ",3|||1"}));
}

TEST_F(FiltersFromEntries, AnyChangesInARowKeepExactlyTheNumbers) {
    for (const unsigned span : {30U, 3000U, 2000000000U}) {
        std::mt19937 random(span);
        Store({"I|0||||1"});
        std::set<EntryNumber> expected;
        NumberFilters filters(Settings, Highlight);
        for (int step = 1; step <= 20000; ++step) {
            const auto number = static_cast<EntryNumber>(random() % span);
            if (random() % 3 == 0) {
                filters.Remove(number);
                expected.erase(number);
            } else {
                EXPECT_TRUE(filters.Add(number));
                expected.insert(number);
            }
            if (step % 5000 == 0) {
                filters.Write();
                EXPECT_EQ(Numbers(Loaded(), 'H'), expected);
            }
        }
        EXPECT_EQ(Loaded().front(), "I|0||||1");
    }
}

TEST_F(FiltersFromEntries, ManyChangesAtOnceGiveTheSameFiltersAsOneByOne) {
    const Texts starts[] = {
        {},
        {"I|0||||1", "Q"},
        {"H|8|7-2,x, 5 ,,100-200,150-160,9999999999999|A|B|1", "H|8|5,6,8-90000|A||1"},
        {"H|8|" + ListOfLength(1017) + "||", "I|0||||1", "H|8|" + ListOfLength(990) + "|||1"},
        {"H|8|," + ListOfLength(1014) + "|||1", "H|8|,,|||1"}};
    unsigned seed = 1;
    for (const Texts& start : starts) {
        for (const unsigned span : {12U, 300U, 5000U}) {
            std::mt19937 random(seed++);
            MemorySettings otherMemory;
            Registry other(otherMemory);
            Memory.Values.clear();
            if (!start.empty())
                Store(start);
            otherMemory.Values = Memory.Values;

            NumberFilters filters(other, Highlight);
            for (int step = 0; step < 500; ++step) {
                const auto number = static_cast<EntryNumber>(95 + random() % span);
                if (random() % 3 == 0)
                    EXPECT_EQ(RemoveEntryFromFilter(Settings, number, Highlight), filters.Remove(number));
                else
                    EXPECT_EQ(AddEntryToFilter(Settings, number, Highlight), filters.Add(number));
            }
            filters.Write();
            EXPECT_EQ(otherMemory.Writes, 1);
            EXPECT_EQ(WithoutEmptyFilters(otherMemory), WithoutEmptyFilters(Memory))
                << "from " << testing::PrintToString(start);
        }
    }
}

TEST_F(FiltersFromEntries, NumbersThatGoAndComeDoNotMultiplyTheParts) {
    std::mt19937 random(7);
    Store({"I|0||||1"});
    NumberFilters filters(Settings, Highlight);
    for (EntryNumber number = 0; number < 12; ++number)
        filters.Add(number);
    for (int step = 0; step < 3000; ++step) {
        const auto number = static_cast<EntryNumber>(random() % 12);
        filters.Remove(number);
        filters.Add(number);
    }
    filters.Write();
    const Texts loaded = Loaded();
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_LE(std::count(loaded[1].begin(), loaded[1].end(), ','), 4 * 12);
    EXPECT_EQ(Numbers(loaded, 'H').size(), 12U);
}

TEST_F(FiltersFromEntries, NoChangeIsNoWrite) {
    NumberFilters filters(Settings, Exclude);
    filters.Write();
    EXPECT_EQ(Memory.Writes, 0);
}

TEST_F(FiltersFromEntries, ManyEntriesSurviveInTheSettingsFile) {
    const TemporaryFolder folder;
    JsonSettings json((folder.Path() / "Qorvix.json").string());
    Registry settings(json);
    std::set<EntryNumber> expected;
    NumberFilters filters(settings, Exclude);
    for (EntryNumber number = 1000000; number < 1030000; number += 3) {
        filters.Add(number);
        expected.insert(number);
    }
    filters.Write();
    JsonSettings next((folder.Path() / "Qorvix.json").string());
    Texts loaded;
    for (const FilterDefinition& filter : LoadFilters(Registry(next), {}).Filters)
        loaded.push_back(FormatFilter(filter));
    EXPECT_EQ(loaded.front(), "I|0||||1");
    EXPECT_EQ(Numbers(loaded, 'X'), expected);
}
