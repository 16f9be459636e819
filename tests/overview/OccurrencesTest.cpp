// SPDX-License-Identifier: MIT
#include "overview/Occurrences.h"

#include "rows/RowRanges.h"
#include "support/AllRows.h"
#include "support/EntriesFrom.h"

#include <gtest/gtest.h>

namespace {

class OccurrencesOfErrors : public testing::Test {
  protected:
    OccurrencesOfErrors() {
        FillTable(Entries, {{EventTypes::Error, "P1 door", "IPO", ""},
                            {EventTypes::Error, "P2 door", "IPO", ""},
                            {EventTypes::Info, "P1 door", "IPO", ""}, // no error
                            {EventTypes::Fatal, "P1 gate", "IPO", ""},
                            {EventTypes::Warning, "oil 7", "PLC", "PUMP"},
                            {EventTypes::Error, "P1 door", "PLC", ""},
                            {EventTypes::Warning, "oil 12", "PLC", "PUMP"}});
        Rows = AllRows(Entries);
    }
    Occurrences Of(const std::string& key) const { return {Entries, Keys, key}; }
    RowRanges RangesOf(const std::string& key) const {
        const EntrySet all = Of(key).All();
        return RangesThat(Rows, [&](const LogbookRow& row) { return all.Contains(row.Entry); });
    }

    EntryTable Entries;
    LogbookRows Rows;
    ErrorKeys Keys{InitFacilityTable()};
};

} // namespace

TEST_F(OccurrencesOfErrors, AreWalkedInListOrder) {
    const Occurrences door = Of("P1");
    EXPECT_EQ(door.Next(Rows, {}, SearchDirection::Down), 0U);
    EXPECT_EQ(door.Next(Rows, 0, SearchDirection::Down), 3U);
    EXPECT_EQ(door.Next(Rows, 3, SearchDirection::Down), 5U);
    EXPECT_EQ(door.Next(Rows, 5, SearchDirection::Down), std::nullopt);
    EXPECT_EQ(door.Next(Rows, 4, SearchDirection::Up), 3U);
    EXPECT_EQ(door.Next(Rows, {}, SearchDirection::Up), 5U);
    std::reverse(Rows.begin(), Rows.end());
    EXPECT_EQ(door.Next(Rows, {}, SearchDirection::Down), 1U);
}

TEST_F(OccurrencesOfErrors, AreRangesOfRows) {
    EXPECT_EQ(RangesOf("P1"), (RowRanges{{0, 0}, {3, 3}, {5, 5}}));
    EXPECT_EQ(RangesOf("PLC/PUMP oil #"), (RowRanges{{4, 4}, {6, 6}}));
    EXPECT_EQ(RangesOf("P9"), RowRanges());
    Rows.erase(Rows.begin() + 4);
    EXPECT_EQ(RangesOf("P1"), (RowRanges{{0, 0}, {3, 4}}));
    EXPECT_EQ(Of("PLC/PUMP oil #").All().Numbers(), (std::vector<EntryNumber>{4, 6})); // also without a row
}
