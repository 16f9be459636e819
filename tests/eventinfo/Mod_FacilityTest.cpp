// SPDX-License-Identifier: MIT
#include "eventinfo/Mod_Facility.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

TEST(Facility, TableHas220RowsAnd81EmptySlots) {
    const FacilityTable table = InitFacilityTable();
    ASSERT_EQ(table.size(), 301U);
    for (std::size_t slot = 0; slot < 220; ++slot) {
        EXPECT_GT(table[slot].Number, 0) << slot;
        EXPECT_NE(table[slot].FilePrefix, "") << slot;
        EXPECT_NE(table[slot].ModuleName, "") << slot;
    }
    for (std::size_t slot = 220; slot <= 300; ++slot)
        EXPECT_EQ(table[slot], FacilityRecord()) << slot;
}

TEST(Facility, NumbersAndFilePrefixesDiffer) {
    std::set<std::int32_t> numbers;
    std::set<std::string> prefixes;
    std::size_t withFile = 0;
    const FacilityTable table = InitFacilityTable();
    for (std::size_t slot = 0; slot < 220; ++slot) {
        EXPECT_TRUE(numbers.insert(table[slot].Number).second) << table[slot].ModuleName;
        if (table[slot].FilePrefix == "??")
            continue;
        ++withFile;
        EXPECT_EQ(table[slot].FilePrefix, table[slot].ModuleName);
        EXPECT_TRUE(prefixes.insert(table[slot].FilePrefix).second) << table[slot].ModuleName;
    }
    EXPECT_EQ(withFile, 112U);
}

TEST(Facility, ModuleNamesAreCapitals) {
    for (const FacilityRecord& facility : InitFacilityTable())
        for (const char c : facility.ModuleName)
            EXPECT_TRUE((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) << facility.ModuleName;
}

TEST(Facility, IsFoundByItsNumber) {
    const FacilityTable table = InitFacilityTable();
    for (const std::int32_t number : {0x231, 0x232, 0x300}) {
        const std::size_t slot = FindFacility(table, number);
        ASSERT_NE(slot, 0U) << number;
        EXPECT_EQ(table[slot].Number, number);
    }
    for (std::size_t slot = 1; slot < 220; ++slot)
        EXPECT_EQ(FindFacility(table, table[slot].Number), slot);
}

TEST(Facility, FirstSlotIsNeverFound) {
    const FacilityTable table = InitFacilityTable();
    EXPECT_EQ(table[0].Number, 264);
    EXPECT_EQ(FindFacility(table, 264), 0U);
}

TEST(Facility, NumberZeroIsFoundInTheFirstEmptySlot) {
    EXPECT_EQ(FindFacility(InitFacilityTable(), 0), 220U);
}

TEST(Facility, UnknownNumbersAreNotFound) {
    for (const std::int64_t number : {std::int64_t{1}, std::int64_t{-1}, std::int64_t{0x7FFFFFFF},
                                      std::int64_t{0xFFFFFFFF}, std::int64_t{0x100000231}})
        EXPECT_EQ(FindFacility(InitFacilityTable(), number), 0U) << number;
}
