// SPDX-License-Identifier: MIT
#include "tools/LogbookWriter.h"
#include "tools/WrittenLogbook.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

struct Sample {
    const char* Name;
    LogbookOrder Order;
};

constexpr std::int64_t LastSaturdayOfOctober = 14912; // 2010

constexpr Sample Samples[] = {
    {"classic",
     {.generation = Generation::Classic,
      .entries = 380,
      .seed = 975,
      .plants = {.codedErrors = 47, .cleared = 32, .clockSteps = 145, .bursts = 177, .precursors = 41}}},
    {"separated",
     {.generation = Generation::Separated,
      .entries = 380,
      .seed = 1814,
      .firstDay = LastSaturdayOfOctober,
      .plants = {.codedErrors = 44, .cleared = 35, .bursts = 124, .precursors = 41, .summerTime = true}}},
    {"operation",
     {.generation = Generation::Operation,
      .entries = 380,
      .seed = 1120,
      .plants = {.codedErrors = 65, .clockSteps = 198, .bursts = 203, .precursors = 36}}}};

std::string Path(const Sample& sample) {
    return QORVIX_SOURCE_FOLDER "/samples/" + std::string(sample.Name) + ".log";
}

} // namespace

TEST(LogbookWriter, SamplesAreWhatItWrites) {
    for (const Sample& sample : Samples)
        EXPECT_TRUE(LogbookText(sample.Order) == FileContent(Path(sample))) << sample.Name;
}

TEST(LogbookWriter, SamplesHoldEveryKindOfEvent) {
    for (const Sample& sample : Samples) {
        SCOPED_TRACE(sample.Name);
        ReadResult result;
        ReadText(FileContent(Path(sample)), result);
        ASSERT_TRUE(result.Read);
        std::set<int> types;
        bool umlaut = false;
        for (EntryNumber number = 0; number < result.Book.Entries.Count(); ++number) {
            types.insert(result.Book.Entries.Kind(number).EventType);
            umlaut = umlaut || result.Book.Entries.Data(number).find("ü") != std::string_view::npos;
        }
        std::set<int> expected{1, 2, 3, 4, 5, 6, 7, 9};
        if (sample.Order.generation == Generation::Operation)
            expected.erase(EventTypes::Fatal); // this generation has no such events
        for (const int type : types)
            EXPECT_TRUE(expected.contains(type)) << type;
        for (const int type : {1, 2, 3, 5, 6, 7})
            EXPECT_TRUE(types.contains(type)) << type;
        EXPECT_TRUE(umlaut);
    }
}

TEST(LogbookWriter, SamplesTellTheirStories) {
    for (const Sample& sample : Samples) {
        SCOPED_TRACE(sample.Name);
        const WrittenLogbook book(sample.Order);
        EXPECT_GE(book.TruthOf("precursor").size(), 3U);
        const nlohmann::json fault = book.TruthOf("precursor").front()["before"];
        const auto isOfFault = [&](const nlohmann::json& object) { return object["key"] == fault; };
        const std::vector<nlohmann::json> errors = book.TruthOf("error");
        EXPECT_GE(std::count_if(errors.begin(), errors.end(), isOfFault), 4);
        const std::vector<nlohmann::json> cleared = book.TruthOf("cleared");
        EXPECT_EQ(std::count_if(cleared.begin(), cleared.end(), isOfFault),
                  sample.Order.plants.cleared > 0 ? 1 : 0);
        const std::vector<nlohmann::json> steps = book.TruthOf("clock");
        EXPECT_TRUE(std::any_of(steps.begin(), steps.end(),
                                [](const nlohmann::json& step) { return step["to"] < step["from"]; }));
        EXPECT_GE(book.TruthOf("start").size(), 10U);
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
