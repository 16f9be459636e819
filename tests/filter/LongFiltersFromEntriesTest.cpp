// SPDX-License-Identifier: MIT
#include "filter/FiltersFromEntriesTest.h"

#include "support/TestStore.h"

namespace {

using FilterActions::Exclude;
using FilterActions::Highlight;

class LongFiltersFromEntries : public FiltersFromEntriesTest {};

} // namespace

TEST_F(LongFiltersFromEntries, ANumberWithoutRoomGoesToANewFilter) {
    const std::string full = "X|8|" + ListOfLength(1015) + "|||1"; // 1,023 characters in all
    Store({"I|0||||1", full});
    EXPECT_TRUE(AddEntryToFilter(Settings, 5000, Exclude));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", full, "X|8|5000|||1"}));
    EXPECT_TRUE(AddEntryToFilter(Settings, 5002, Exclude));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", full, "X|8|5000,5002|||1"}));
    EXPECT_TRUE(AddEntryToFilter(Settings, 100, Exclude)); // which the first one holds
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", full, "X|8|5000,5002|||1"}));
}

TEST_F(LongFiltersFromEntries, APartThatHasNoRoomAnyMoreMovesOn) {
    const std::string list = ListOfLength(1011);
    Store({"X|8|" + list + ",900|||1"}); // 1,023 characters in all
    EXPECT_TRUE(AddEntryToFilter(Settings, 5000, Exclude));
    EXPECT_TRUE(AddEntryToFilter(Settings, 99, Exclude)); // makes the first part "99-100"
    EXPECT_EQ(Loaded(), (Texts{"X|8|99-" + list + "|||1", "X|8|900,5000|||1"}));
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 99, Exclude));
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + list + ",900|||1", "X|8|5000|||1"}));
}

TEST_F(LongFiltersFromEntries, TheLastPlaceOfAFilterIsUsed) {
    const std::string list = ListOfLength(1012);
    Store({"X|8|" + list + "|||1"});
    AddEntryToFilter(Settings, 10, Exclude); // three more characters
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + list + ",10|||1"}));
    Store({"X|8|" + list + " |||1"});
    AddEntryToFilter(Settings, 10, Exclude);
    AddEntryToFilter(Settings, 5, Exclude); // stays behind the other, though there is room for it
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + list + " |||1", "X|8|10,5|||1"}));
}

TEST_F(LongFiltersFromEntries, ASecondFilterIsAListOfItsOwn) {
    Store({"I|0||||1", "H|8|5|||1", "H|8|30-40|||1"});
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 35, Highlight));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|8|5|||1", "H|8|30-40|||1"}));
    EXPECT_TRUE(AddEntryToFilter(Settings, 29, Highlight));
    EXPECT_TRUE(AddEntryToFilter(Settings, 35, Highlight));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|8|5,29,35|||1", "H|8|30-40|||1"}));
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 35, Highlight));
    EXPECT_EQ(Loaded(), (Texts{"I|0||||1", "H|8|5,29|||1", "H|8|30-40|||1"}));
}

TEST_F(LongFiltersFromEntries, AFilterGoesOnInOneWhoseBeginningItHasNoRoomFor) {
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

TEST_F(LongFiltersFromEntries, AFilterWithANameOrSenderGoesOnWithNoOther) {
    const std::string full = "X|8|" + ListOfLength(1015) + "|||1";
    const Texts before = {full, "X|8|5000|NAME||1", "X|8|5000||SENDER|1", "X|8||NAME||1"};
    Store(before);
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 5000, Exclude));
    EXPECT_EQ(Loaded(), before);
    EXPECT_TRUE(AddEntryToFilter(Settings, 5000, Exclude));
    EXPECT_EQ(Loaded(), (Texts{before[0], before[1], before[2], before[3], "X|8|5000|||1"}));
}

TEST_F(LongFiltersFromEntries, WhatStandsBehindMovesUpWhenNumbersAreTakenOut) {
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

TEST_F(LongFiltersFromEntries, OnlyChangedFiltersOfALongListAreWrittenBesidesTheFirst) {
    const std::string full = "H|8|" + ListOfLength(1015) + "|||1";
    Store({full, "H|8|" + ListOfLength(1015) + "||", "H|8|5000,5002|||1"}); // the second in the older form
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 5002, Highlight));
    EXPECT_EQ(Settings.ReadFilterSettingString("Filter2", ""), "H|8|" + ListOfLength(1015) + "||");
    EXPECT_EQ(Settings.ReadFilterSettingString("Filter3", ""), "H|8|5000|||1");
    EXPECT_EQ(Memory.Writes, 1);
}

TEST_F(LongFiltersFromEntries, ARangeGrowsInAFilterThatIsFull) {
    const std::string rest = "," + ListOfLength(1010);
    Store({"X|8|2-4" + rest.substr(0, 1012) + "|||1"});
    AddEntryToFilter(Settings, 5, Exclude);
    EXPECT_EQ(Loaded(), (Texts{"X|8|2-5" + rest + "|||1"}));
}

TEST_F(LongFiltersFromEntries, NameAndSenderTakeRoomToo) {
    const std::string list = ListOfLength(1000);
    Store({"X|8|" + list + "|NAME|SEÄDER890€|1"});
    AddEntryToFilter(Settings, 5, Exclude);
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + list + "|NAME|SEÄDER890€|1", "X|8|5|||1"}));
    Store({"X|8|" + list + "|NAME|SEÄDER8|1"});
    AddEntryToFilter(Settings, 5, Exclude);
    EXPECT_EQ(Loaded(), (Texts{"X|8|" + list + ",5|NAME|SEÄDER8|1"})) << "characters count, not bytes";
}

TEST_F(LongFiltersFromEntries, TheListGoesOnInFiltersThatAreThereBeforeANewOne) {
    const std::string full = "H|8|" + ListOfLength(1015) + "|||1";
    Store({full, "X|8|1|||1", "H|8|2|||0", full, "H|8|3|||1"});
    AddEntryToFilter(Settings, 5000, Highlight);
    EXPECT_EQ(Loaded(), (Texts{full, "X|8|1|||1", "H|8|2|||0", full, "H|8|3,5000|||1"}));
}

TEST_F(LongFiltersFromEntries, ANumberIsTakenOutOfEachFilterOfALongList) {
    const std::string full = "H|8|" + ListOfLength(1010) + ",5";
    Store({full + "   |||1", "X|8|5|||1", "H|8|5|||0", "H|8|400-600,4-6|||1"});
    EXPECT_TRUE(RemoveEntryFromFilter(Settings, 5, Highlight));
    EXPECT_EQ(Loaded(),
              (Texts{"H|8|" + ListOfLength(1010) + "|||1", "X|8|5|||1", "H|8|5|||0", "H|8|400-600,4,6|||1"}));
}

TEST_F(LongFiltersFromEntries, WhatARemovalHasNoRoomForMovesOn) {
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

TEST_F(LongFiltersFromEntries, AnOlderFilterThatIsTooLongInTheNewFormStays) {
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

TEST_F(LongFiltersFromEntries, ManyEntriesSurviveInTheSettings) {
    const TestStore place;
    Registry settings(place.Store());
    std::set<EntryNumber> expected;
    NumberFilters filters(settings, Exclude);
    for (EntryNumber number = 1000000; number < 1030000; number += 3) {
        filters.Add(number);
        expected.insert(number);
    }
    filters.Write();
    Texts loaded;
    for (const FilterDefinition& filter : LoadFilters(Registry(place.Store()), {}).Filters)
        loaded.push_back(FormatFilter(filter));
    EXPECT_EQ(loaded.front(), "I|0||||1");
    EXPECT_EQ(Numbers(loaded, 'X'), expected);
}
