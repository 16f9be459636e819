// SPDX-License-Identifier: MIT
#include "logbook/Stamp.h"

#include "logbook/EntryStamps.h"
#include "support/ReadText.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

std::string IsoOf(std::string_view text) {
    const std::optional<Stamp> stamp = ReadStamp(text);
    return stamp ? IsoText(*stamp) : "none";
}

Stamp StampAt(std::string_view text) { return ReadStamp(text).value_or(Stamp{}); }

} // namespace

TEST(Stamp, IsReadInEitherOrderOfDateAndClock) {
    EXPECT_EQ(IsoOf("04.01.2010 12:45:02"), "2010-01-04T12:45:02");
    EXPECT_EQ(IsoOf("12:45:02 04.01.2010"), "2010-01-04T12:45:02");
    EXPECT_EQ(IsoOf("  4.1.10   12:45:02.123 "), "2010-01-04T12:45:02.123");
    EXPECT_EQ(IsoOf("04.01.99 12:45"), "1999-01-04T12:45:00");
}

TEST(Stamp, HasThreeDigitsOfAFraction) {
    EXPECT_EQ(IsoOf("04.01.2010 12:45:02.1"), "2010-01-04T12:45:02.100");
    EXPECT_EQ(IsoOf("04.01.2010 12:45:02.1239"), "2010-01-04T12:45:02.123");
    EXPECT_EQ(IsoOf("04.01.2010 12:45:02.000"), "2010-01-04T12:45:02.000");
    EXPECT_EQ(IsoOf("04.01.2010 12:45:02:250"), "2010-01-04T12:45:02.250");
    EXPECT_EQ(IsoOf("04.01.2010 12:45:02:"), "none");
}

TEST(Stamp, NeedsADayAndAClockThatExist) {
    for (const char* const text :
         {"", "04.01.2010", "12:45:02", "30.02.2010 12:45:02", "04.01.2010 24:00:00", "04.01.2010 12:60:00",
          "04.01.2010 12:45:02.", "04.01.0099 12:45:02", "Mon Jan 04 2010 12:45:02", "04.01.2010 12:45:02 x"})
        EXPECT_EQ(IsoOf(text), "none") << text;
    EXPECT_EQ(IsoOf("29.02.2012 23:59:59"), "2012-02-29T23:59:59");
}

TEST(Stamp, DifferencesAreInWholeSecondsUnlessBothHaveMilliseconds) {
    EXPECT_EQ(TimeBetween(StampAt("04.01.2010 12:00:00.900"), StampAt("04.01.2010 12:00:01.100")), 200ms);
    EXPECT_EQ(TimeBetween(StampAt("04.01.2010 12:00:00.900"), StampAt("04.01.2010 12:00:00")), 0ms);
    EXPECT_EQ(TimeBetween(StampAt("04.01.2010 12:00:00"), StampAt("04.01.2010 12:00:00.900")), 0ms);
    EXPECT_EQ(TimeBetween(StampAt("04.01.2010 12:00:01"), StampAt("04.01.2010 12:00:00.900")), -1s);
    EXPECT_EQ(TimeBetween(StampAt("31.12.2009 23:59:59"), StampAt("01.01.2010 00:00:01")), 2s);
}

TEST(Stamp, OfEntriesIsThatOfTheirTime) {
    for (const char* const time :
         {"04.01.2010 12:34:56.789", "04.01.2010 12:34:56", "12:34:56 04.01.2010", "04.01.2010 25:34:56",
          "04.01.2010 12:34:56.78", "31.02.2010 12:34:56", "12:34:56", "", "4.1.10 01:02:03", "x 01:02:03"}) {
        ReadResult result;
        ReadText(Header("STIB:    On", time) + "\r\n" + Header("STIB:    Off") + "\r\n", result);
        ASSERT_TRUE(result.Read);
        EXPECT_EQ(EntryStamps(result.Book.Entries)[0], ReadStamp(result.Book.Entries.Time(0))) << time;
    }
}
