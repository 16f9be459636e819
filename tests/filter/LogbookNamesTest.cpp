// SPDX-License-Identifier: MIT
#include "filter/LogbookNames.h"

#include "logbook/EntryTable.h"
#include "support/EntriesFrom.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

LogbookNames NamesOf(const std::vector<TestEntry>& entries) {
    EntryTable table;
    FillTable(table, entries);
    return NamesInLogbook(table.Kinds());
}

} // namespace

TEST(LogbookNames, EachOccursOnceAndSorted) {
    const LogbookNames found = NamesOf({{3, "data", "PLC", "Zeta"},
                                        {3, "data", "GEO", "alpha"},
                                        {1, "other", "PLC", "Beta"},
                                        {1, "data", "geo", "Zeta"},
                                        {1, "data", "GEO", "Alpha"}});
    EXPECT_THAT(found.Names, ElementsAre("Alpha", "alpha", "Beta", "Zeta"));
    EXPECT_THAT(found.Senders, ElementsAre("GEO", "geo", "PLC"));
}

TEST(LogbookNames, EmptyOnesAreNone) {
    const LogbookNames found = NamesOf({{6, "key", "", ""}});
    EXPECT_THAT(found.Names, IsEmpty());
    EXPECT_THAT(found.Senders, IsEmpty());
    EXPECT_THAT(NamesOf({}).Names, IsEmpty());
}

TEST(LogbookNames, AreAtMostAThousand) {
    std::vector<TestEntry> entries;
    for (int i = 2999; i >= 1000; --i)
        entries.push_back({3, "data", "S" + std::to_string(i), "N" + std::to_string(i)});
    const LogbookNames found = NamesOf(entries);
    ASSERT_EQ(found.Names.size(), LogbookNames::Most);
    EXPECT_EQ(found.Names.front(), "N1000");
    EXPECT_EQ(found.Names.back(), "N1999");
    ASSERT_EQ(found.Senders.size(), LogbookNames::Most);
    EXPECT_EQ(found.Senders.back(), "S1999");
}
