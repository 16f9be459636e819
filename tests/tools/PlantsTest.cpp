// SPDX-License-Identifier: MIT
#include "tools/PlantTexts.h"
#include "tools/WrittenLogbook.h"

#include "eventinfo/iZEKEventInfo.h"

#include <gtest/gtest.h>

#include <set>

namespace {

std::uint64_t Fnv1a(std::string_view bytes) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char byte : bytes)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
    return hash;
}

LogbookOrder OrderOf(Generation generation, std::uint64_t entries, const Plants& plants) {
    LogbookOrder order;
    order.generation = generation;
    order.entries = entries;
    order.plants = plants;
    return order;
}

// The steps of the clock in a story that begins three days before a change.
std::vector<nlohmann::json> StepsAround(std::int64_t firstDay) {
    LogbookOrder order = OrderOf(Generation::Classic, 6000, {.summerTime = true});
    order.firstDay = firstDay;
    return WrittenLogbook(order).TruthOf("clock");
}

} // namespace

TEST(Plants, OrdersWithoutThemGiveTheirOldBytes) {
    constexpr std::array<std::uint64_t, 3> Hashes{0xF0EDB49F1BF9B7B1U, 0xE1AAB8A01BD3C341U,
                                                  0x4CA0473FCD90E8D9U};
    for (std::size_t i = 0; i < AllGenerations.size(); ++i)
        EXPECT_EQ(Fnv1a(LogbookText(OrderOf(AllGenerations[i], 5000, Plants()))), Hashes[i]) << i;
}

TEST(Plants, BeginBehindTheFirstEventsOfTheStory) {
    for (const Generation generation : AllGenerations) {
        const std::string plain = LogbookText(OrderOf(generation, 20, Plants()));
        const std::string planted = LogbookText(OrderOf(generation, 300, ManyPlants()));
        EXPECT_TRUE(planted.starts_with(plain));
        EXPECT_FALSE(LogbookText(OrderOf(generation, 300, Plants())) == planted);
    }
}

TEST(Plants, CodedErrorsAreInEveryGeneration) {
    for (const Generation generation : AllGenerations) {
        const WrittenLogbook book(OrderOf(generation, 3000, {.codedErrors = 10}));
        std::set<std::string> codes;
        for (const nlohmann::json& error : book.TruthOf("error"))
            codes.insert(error["key"]);
        for (const char* const code :
             {"232-0005", "232-0012", "232-00A0", "1E1-0010", "1E1-0011", "231-001A", "231-002B", "231-00FF",
              "300-000C", "300-1234", "22A-0003", "248-0011"})
            EXPECT_TRUE(codes.contains(code)) << code;
    }
}

TEST(Plants, MostCodedErrorsHaveTexts) {
    const auto hasText = [](const ModuleText& error) {
        const std::string folder = QORVIX_SOURCE_FOLDER "/samples/language";
        return AutoFillCommentNCK(error.text, {Language::English}, folder).Text.has_value();
    };
    const auto with = std::count_if(CodedErrors.begin(), CodedErrors.end(), hasText);
    EXPECT_EQ(with, std::ssize(CodedErrors) - 3);
}

TEST(Plants, BurstsAreStartsWithinMinutes) {
    const auto mostStartsInAnHour = [](const Plants& plants) {
        const WrittenLogbook book(OrderOf(Generation::Operation, 3000, plants));
        std::map<std::string, int> starts;
        int most = 0;
        for (const nlohmann::json& start : book.TruthOf("start"))
            most = std::max(most, ++starts[start["time"].get<std::string>().substr(0, 13)]);
        return most;
    };
    EXPECT_GT(mostStartsInAnHour({.bursts = 40}), 12);
    EXPECT_LT(mostStartsInAnHour({}), 10);
}

TEST(Plants, OctoberHasAnHourTwice) {
    const std::vector<nlohmann::json> steps = StepsAround(14910); // Thursday 28 October 2010
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_TRUE(steps[0]["from"].get<std::string>().starts_with("2010-10-31T02:")) << steps[0];
    EXPECT_TRUE(steps[0]["to"].get<std::string>().starts_with("2010-10-31T02:0")) << steps[0];
    EXPECT_LT(steps[0]["to"], steps[0]["from"]);
}

TEST(Plants, MarchLacksAnHour) {
    const std::vector<nlohmann::json> steps = StepsAround(14693); // Thursday 25 March 2010
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_TRUE(steps[0]["from"].get<std::string>().starts_with("2010-03-28T01:")) << steps[0];
    EXPECT_TRUE(steps[0]["to"].get<std::string>().starts_with("2010-03-28T03:0")) << steps[0];
}
