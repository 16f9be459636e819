// SPDX-License-Identifier: MIT
#include "filter/FiltersFromEntriesTest.h"

#include <algorithm>
#include <random>

namespace {

using FilterActions::Highlight;

class RandomFiltersFromEntries : public FiltersFromEntriesTest {};

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

} // namespace

TEST_F(RandomFiltersFromEntries, AnyChangesInARowKeepExactlyTheNumbers) {
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
                filters.Add(number);
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

TEST_F(RandomFiltersFromEntries, ManyChangesAtOnceGiveTheSameFiltersAsOneByOne) {
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
                if (random() % 3 == 0) {
                    EXPECT_EQ(RemoveEntryFromFilter(Settings, number, Highlight), filters.Remove(number));
                } else {
                    EXPECT_TRUE(AddEntryToFilter(Settings, number, Highlight));
                    filters.Add(number);
                }
            }
            filters.Write();
            EXPECT_EQ(otherMemory.Writes, 1);
            EXPECT_EQ(WithoutEmptyFilters(otherMemory), WithoutEmptyFilters(Memory))
                << "from " << testing::PrintToString(start);
        }
    }
}

TEST_F(RandomFiltersFromEntries, NumbersThatGoAndComeDoNotMultiplyTheParts) {
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
