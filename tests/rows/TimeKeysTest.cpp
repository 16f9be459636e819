// SPDX-License-Identifier: MIT
#include "rows/TimeKeys.h"

#include "support/EntriesFrom.h"

#include <gtest/gtest.h>

namespace {

class TimeKeysTest : public testing::Test {
  protected:
    void Fill(const std::vector<std::string>& stamps) {
        std::vector<TestEntry> list;
        for (const std::string& stamp : stamps)
            list.push_back({EventTypes::Info, "", "", "", stamp});
        FillTable(Entries, list);
    }

    EntryTable Entries;
};

} // namespace

TEST_F(TimeKeysTest, AreSeconds) {
    Fill({"04.01.2010 12:34:56", "04.01.2010 12:34:57.999", "05.01.2010 12:34:56", "12:34:56 06.01.2010"});
    const TimeKeys keys(Entries);
    EXPECT_EQ(keys[1] - keys[0], 1U);
    EXPECT_EQ(keys[2] - keys[0], 86400U);
    EXPECT_EQ(keys[3] - keys[0], 2U * 86400U);
}

TEST_F(TimeKeysTest, ClockTimesThatThereAreNotHaveNone) {
    Fill({"04.01.2010 23:59:59", "04.01.2010 24:00:00", "04.01.2010 23:60:00", "04.01.2010 23:59:60",
          "31.02.2010 12:00:00", "no time"});
    const TimeKeys keys(Entries);
    EXPECT_NE(keys[0], TimeKeys::None);
    for (EntryNumber number = 1; number < Entries.Count(); ++number)
        EXPECT_EQ(keys[number], TimeKeys::None) << Entries.Time(number);
}

TEST_F(TimeKeysTest, EarliestIsTheBeginOfTheFirstDay) {
    Fill({"05.01.2010 12:00:00", "04.01.2010 00:00:00", "06.01.2010 00:00:00", "31.02.2010 00:00:00"});
    const TimeKeys keys(Entries);
    EXPECT_EQ(keys.Earliest(), keys[1]);
    Fill({"no time"});
    EXPECT_NE(TimeKeys(Entries).Earliest(), TimeKeys::None);
}
