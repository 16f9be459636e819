// SPDX-License-Identifier: MIT
#include "tools/LogbookWriter.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace {

struct Sample {
    Generation Kind;
    const char* Name;
    std::uint64_t Seed;
};

constexpr Sample Samples[] = {{Generation::Classic, "classic", 975},
                              {Generation::Separated, "separated", 59},
                              {Generation::Operation, "operation", 146}};

} // namespace

TEST(LogbookWriter, SamplesAreWhatItWrites) {
    for (const auto& [generation, name, seed] : Samples) {
        LogbookOrder order;
        order.generation = generation;
        order.entries = 300;
        order.seed = seed;
        const std::string sample = FileContent(QORVIX_SOURCE_FOLDER "/samples/" + std::string(name) + ".log");
        EXPECT_TRUE(LogbookText(order) == sample) << name;
    }
}

TEST(LogbookWriter, SamplesHoldEveryKindOfEvent) {
    for (const auto& [generation, name, seed] : Samples) {
        SCOPED_TRACE(seed);
        ReadResult result;
        ReadText(FileContent(QORVIX_SOURCE_FOLDER "/samples/" + std::string(name) + ".log"), result);
        ASSERT_TRUE(result.Read);
        std::set<int> types;
        bool umlaut = false;
        for (EntryNumber number = 0; number < result.Book.Entries.Count(); ++number) {
            types.insert(result.Book.Entries.Kind(number).EventType);
            umlaut = umlaut || result.Book.Entries.Data(number).find("ü") != std::string_view::npos;
        }
        std::set<int> expected{1, 2, 3, 4, 5, 6, 7, 9};
        if (generation == Generation::Operation)
            expected.erase(EventTypes::Fatal); // this generation has no such events
        for (const int type : types)
            EXPECT_TRUE(expected.contains(type)) << name << " " << type;
        for (const int type : {1, 2, 3, 5, 6, 7})
            EXPECT_TRUE(types.contains(type)) << name << " " << type;
        EXPECT_TRUE(umlaut) << name;
    }
}

TEST(LogbookWriter, KeepsItsLimits) {
    LogbookOrder order;
    order.bytes = 100000;
    const std::string text = LogbookText(order);
    EXPECT_GE(text.size(), 100000U);
    EXPECT_LT(text.size(), 102000U);
    order.bytes = 0;
    EXPECT_EQ(LogbookText(order), "");
}

TEST(LogbookWriter, SeedChangesTheEvents) {
    LogbookOrder order;
    order.entries = 50;
    const std::string first = LogbookText(order);
    EXPECT_EQ(LogbookText(order), first);
    order.seed = 2;
    EXPECT_NE(LogbookText(order), first);
}
