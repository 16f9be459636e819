// SPDX-License-Identifier: MIT
#include "tools/OrderOptions.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Options = std::vector<std::string_view>;

} // namespace

TEST(OrderOptions, EveryOptionReachesItsPlace) {
    const std::optional<LogbookCommand> command = ReadLogbookCommand(
        "separated", Options{"--entries",    "300",     "--seed",        "7", "--coded-errors", "1",
                             "--cleared",    "2",       "--clock-steps", "3", "--bursts",       "4",
                             "--precursors", "5",       "--chatter",     "6", "--summer-time",  "--first-day",
                             "1970-01-05",   "--truth", "t.jsonl"});
    ASSERT_TRUE(command);
    EXPECT_EQ(command->truthFile, "t.jsonl");
    EXPECT_EQ(command->order.generation, Generation::Separated);
    EXPECT_EQ(command->order.entries, 300U);
    EXPECT_EQ(command->order.bytes, 0U);
    EXPECT_EQ(command->order.seed, 7U);
    EXPECT_EQ(command->order.firstDay, 4);
    const Plants& plants = command->order.plants;
    EXPECT_EQ(plants.codedErrors, 1U);
    EXPECT_EQ(plants.cleared, 2U);
    EXPECT_EQ(plants.clockSteps, 3U);
    EXPECT_EQ(plants.bursts, 4U);
    EXPECT_EQ(plants.precursors, 5U);
    EXPECT_EQ(plants.chatter, 6U);
    EXPECT_TRUE(plants.summerTime);
}

TEST(OrderOptions, NothingIsPlantedUnlessAskedFor) {
    const std::optional<LogbookCommand> command = ReadLogbookCommand("classic", Options{"--bytes", "3k"});
    ASSERT_TRUE(command);
    EXPECT_EQ(command->order.bytes, 3072U);
    EXPECT_EQ(command->order.firstDay, 14613);
    EXPECT_FALSE(command->order.plants.Any());
    EXPECT_EQ(command->truthFile, "");
}

TEST(OrderOptions, WrongLogbookOrdersAreRefused) {
    const auto isTaken = [](const Options& options) {
        return ReadLogbookCommand("classic", options).has_value();
    };
    EXPECT_TRUE(isTaken({"--entries", "3"}));
    EXPECT_FALSE(isTaken({}));
    EXPECT_FALSE(isTaken({"--seed", "3"}));
    EXPECT_FALSE(isTaken({"--entries", "3", "--bytes", "3"}));
    EXPECT_FALSE(isTaken({"--entries"}));
    EXPECT_FALSE(isTaken({"--entries", "3", "--bursts"}));
    EXPECT_FALSE(isTaken({"--entries", "3", "--bursts", "x"}));
    EXPECT_FALSE(isTaken({"--entries", "3", "--cut"}));
    EXPECT_FALSE(isTaken({"--entries", "3", "--truth", ""}));
    EXPECT_FALSE(isTaken({"--entries", "3", "--chatter", "0"}));
    EXPECT_TRUE(isTaken({"--entries", "3", "--seed", "0"}));
    EXPECT_TRUE(isTaken({"--entries", "3", "--cleared", "1"}));
    EXPECT_FALSE(ReadLogbookCommand("operation", Options{"--entries", "3", "--cleared", "1"}));
    for (const std::string_view day : {"2010-13-01", "2010-02-29", "1969-12-31", "2010-1-1", "01.01.2010"})
        EXPECT_FALSE(isTaken({"--entries", "3", "--first-day", day})) << day;
    EXPECT_FALSE(ReadLogbookCommand("ring", Options{"--entries", "3"}));
}

TEST(OrderOptions, RingOrders) {
    const std::optional<RingOrder> order = ReadRingOrder(Options{
        "--exports", "3", "--cut", "--bytes", "2M", "--overlap", "50", "--holes", "1", "--seed", "9"});
    ASSERT_TRUE(order);
    EXPECT_EQ(order->exports, 3U);
    EXPECT_EQ(order->bytes, 2097152U);
    EXPECT_EQ(order->overlap, 50U);
    EXPECT_EQ(order->holes, 1U);
    EXPECT_EQ(order->seed, 9U);
    EXPECT_TRUE(order->cut);
    EXPECT_FALSE(ReadRingOrder(Options{"--exports", "3"}));
    EXPECT_FALSE(ReadRingOrder(Options{"--bytes", "3"}));
    EXPECT_FALSE(ReadRingOrder(Options{"--exports", "3", "--bytes", "3", "--overlap", "100"}));
    EXPECT_FALSE(ReadRingOrder(Options{"--exports", "3", "--bytes", "3", "--entries", "1"}));
}
