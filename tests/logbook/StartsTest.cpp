// SPDX-License-Identifier: MIT
// The starts that a read notes beside the table.
#include "support/ReadText.h"

#include <gtest/gtest.h>

namespace {

// "entry time" of each start, one a line.
std::string StartsOf(std::string_view text) {
    ReadResult result;
    ReadText(text, result);
    std::string starts;
    for (const LogbookStart& start : result.Book.Starts)
        starts +=
            std::to_string(start.Entry) + ' ' + (start.Time ? IsoText(*start.Time) : "unreadable") + '\n';
    return starts;
}

const std::string Reset1 = Header("RESET:", "04.01.2010 12:00:01");
const std::string Reset2 = Header("RESET:", "04.01.2010 12:00:02");
const std::string Reset3 = Header("RESET:", "04.01.2010 12:00:03.500");
const std::string On = Header("STIB:    On");

} // namespace

TEST(Starts, AreAllThatAreReadAlsoThoseThatFoldingDrops) {
    EXPECT_EQ(StartsOf(Lines({On, Reset1, Reset2, Reset3, On, Reset1})), "1 2010-01-04T12:00:01\n"
                                                                         "2 2010-01-04T12:00:02\n"
                                                                         "2 2010-01-04T12:00:03.500\n"
                                                                         "3 2010-01-04T12:00:01\n");
    EXPECT_EQ(EntriesOf(Lines({Reset1, Reset2, On})), EntriesOf(Lines({Reset1, On})));
}

TEST(Starts, MayHaveATimeThatCannotBeRead) {
    EXPECT_EQ(StartsOf(Lines({Header("RESET:", "04.13.2010 12:00:01"), On})), "0 unreadable\n");
}

TEST(Starts, OfTheSeparatedGenerationBeginWithTheOneBelowTheFirstSeparatorLine) {
    const std::string separator = "_________Mon Jan 04 2010____________";
    const auto reset = [](const std::string& clock) { return "Reset" + std::string(39, ' ') + clock; };
    const std::string stib = "Stib:    ON" + std::string(33, ' ') + "12:00:09";
    EXPECT_EQ(
        StartsOf(Lines({separator, reset("12:00:01"), reset("12:00:02"), reset("12:00:03"), stib, stib})),
        "0 2010-01-04T12:00:01\n"
        "0 2010-01-04T12:00:02\n"
        "1 2010-01-04T12:00:03\n");
}

TEST(Starts, OfTheOperationGenerationAreInfosThatNameThem) {
    const std::string info = Header("Info:    SYS", "04.01.2010 12:00:01");
    EXPECT_EQ(StartsOf(Lines({"Operation Logbook Version 1.0", Header("Stib:    On"), info,
                              "  SYSTEM START 7", info, "  SYSTEM START", info, "  no start"})),
              "1 2010-01-04T12:00:01\n"
              "2 2010-01-04T12:00:01\n");
}

TEST(Starts, AreThoseOfTheLastRead) {
    ReadResult result;
    ReadText(Lines({Reset1, On}), result);
    EXPECT_EQ(result.Book.Starts.size(), 1U);
    ReadText(Lines({On, On}), result);
    EXPECT_TRUE(result.Book.Starts.empty());
    ReadText(Lines({Reset1, On}), result);
    ReadText("", result);
    EXPECT_TRUE(result.Book.Starts.empty());
}
