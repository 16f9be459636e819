// SPDX-License-Identifier: MIT
#include "history/RawStamp.h"

#include <gtest/gtest.h>

namespace {

void ExpectStamp(std::string_view line, std::string_view clock, bool hasDate) {
    const std::optional<RawStamp> stamp = StampOfRawLine(line);
    ASSERT_TRUE(stamp.has_value()) << line;
    EXPECT_EQ(stamp->Clock, clock) << line;
    EXPECT_EQ(stamp->HasDate, hasDate) << line;
}

} // namespace

TEST(RawStamp, StandsAtTheEndOfALine) {
    ExpectStamp("Reset                                       06:22:59\r\n", "06:22:59", false);
    ExpectStamp("Key:     F4 down                            06:12:01 Mon Jan 04 2010\r\n", "06:12:01", true);
    ExpectStamp("Key:     F4 down                            06:12:01.250 Mon Jan  4 2010", "06:12:01", true);
    ExpectStamp("RESET:                                   04.01.2010 12:34:56.789\n", "12:34:56", true);
    ExpectStamp("RESET:                                   04.01.2010 12:34:56\r\n", "12:34:56", true);
    ExpectStamp("RESET:                                    4.01.2010  2:34:56\r\n", " 2:34:56", true);
    ExpectStamp("RESET:                                   12:34:56 04.01.2010\r\n", "12:34:56", true);
}

TEST(RawStamp, TextsAreNone) {
    for (const std::string_view line :
         {"", "\r\n", "  job started 04.01.2010 12:34:56\r\n", "at 12:34:56 it broke\r\n", "12:34:5\r\n",
          "ab:cd:ef\r\n", "_________Mon Jan 04 2010____________\r\n", "ERR:     04.01.2010\r\n"})
        EXPECT_FALSE(StampOfRawLine(line)) << line;
}

TEST(RawStamp, SeparatorHasItsWholeDate) {
    EXPECT_TRUE(IsDatedSeparator("_________Mon Jan 04 2010____________\r\n"));
    for (const std::string_view line :
         {"", "___", "______________\r\n", "________Mon Jan 04 2010____________\r\n",
          "         Mon Jan 04 2010\r\n", "_________Mon Jan 04 20", "_________04.01.2010_____________\r\n"})
        EXPECT_FALSE(IsDatedSeparator(line)) << line;
}
