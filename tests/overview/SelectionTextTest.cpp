// SPDX-License-Identifier: MIT
#include "overview/SelectionText.h"

#include <gtest/gtest.h>

namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr Language English{Language::English};
constexpr Language German{Language::German};

Stamp At(int hour, int minute) {
    return {std::chrono::sys_days(std::chrono::year(2010) / 1 / 4) + hours(hour) + minutes(minute)};
}

} // namespace

TEST(SelectionText, SaysThatNothingIsSelected) {
    EXPECT_EQ(SelectionText({}, English), "No row selected");
    EXPECT_EQ(SelectionText({}, German), "Keine Zeile gewählt");
}

TEST(SelectionText, OfOneRowSaysTheTimeSinceWhatWasBefore) {
    const SelectionFacts facts{.Rows = 1,
                               .Errors = 1,
                               .From = At(8, 5),
                               .To = At(8, 5),
                               .Between = milliseconds(0),
                               .SinceEntry = seconds(30),
                               .SinceError = seconds(90) + milliseconds(7)};
    EXPECT_EQ(SelectionText(facts, English),
              "1 row selected, at 04.01.2010 08:05:00, since the entry before: 0:00:30, since the error "
              "before: 0:01:30.007");
    EXPECT_EQ(SelectionText(facts, German),
              "1 Zeile gewählt, um 04.01.2010 08:05:00, seit dem Eintrag davor: 0:00:30, seit dem Fehler "
              "davor: 0:01:30.007");
}

TEST(SelectionText, OfTheFirstEntryHasNothingBeforeIt) {
    EXPECT_EQ(SelectionText({.Rows = 1,
                             .Errors = 0,
                             .From = At(8, 5),
                             .To = At(8, 5),
                             .Between = {},
                             .SinceEntry = {},
                             .SinceError = {}},
                            English),
              "1 row selected, at 04.01.2010 08:05:00, since the entry before: -, since the error before: -");
}

TEST(SelectionText, OfManyRowsSaysWhatLiesBetween) {
    const SelectionFacts facts{.Rows = 1204,
                               .Errors = 2,
                               .From = At(8, 0),
                               .To = At(34, 5),
                               .Between = hours(26) + minutes(5),
                               .SinceEntry = {},
                               .SinceError = {}};
    EXPECT_EQ(SelectionText(facts, English),
              "1204 rows selected, from 04.01.2010 08:00:00 to 05.01.2010 10:05:00, time between: 26:05:00, "
              "errors among them: 2");
    EXPECT_EQ(SelectionText(facts, German),
              "1204 Zeilen gewählt, von 04.01.2010 08:00:00 bis 05.01.2010 10:05:00, Zeit dazwischen: "
              "26:05:00, davon Fehler: 2");
}

TEST(SelectionText, SaysWhenTheClockWasSetBack) {
    const SelectionFacts facts{.Rows = 2,
                               .Errors = 0,
                               .From = At(8, 5),
                               .To = At(8, 0),
                               .Between = minutes(-5),
                               .SinceEntry = {},
                               .SinceError = {}};
    EXPECT_EQ(SelectionText(facts, English),
              "2 rows selected, from 04.01.2010 08:05:00 to 04.01.2010 08:00:00, time between: -0:05:00 (the "
              "clock was set back), errors among them: 0");
    EXPECT_NE(SelectionText(facts, German).find("-0:05:00 (die Uhr wurde zurückgestellt)"),
              std::string::npos);
}

TEST(SelectionText, SaysWhenAStampCannotBeRead) {
    EXPECT_EQ(
        SelectionText({.Rows = 2,
                       .Errors = 1,
                       .From = {},
                       .To = At(8, 0),
                       .Between = {},
                       .SinceEntry = {},
                       .SinceError = {}},
                      English),
        "2 rows selected, from unreadable to 04.01.2010 08:00:00, time between: -, errors among them: 1");
}
