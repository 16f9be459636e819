// SPDX-License-Identifier: MIT
#include "history/StitchLines.h"
#include "history/Stitches.h"
#include "support/ReadText.h"

#include <gtest/gtest.h>

namespace {

using Outcome = CommonLines::Outcome;
using Reason = CommonLines::Reason;

constexpr const char* Monday = "_________Mon Jan 04 2010____________\r\n";
constexpr const char* Tuesday = "_________Tue Jan 05 2010____________\r\n";

CommonLines Find(const std::string& older, const std::string& newer) {
    const TemporaryFolder folder;
    std::error_code error;
    const ExportLines olderLines(folder.Write("a.log", older), error);
    EXPECT_FALSE(error);
    const ExportLines newerLines(folder.Write("b.log", newer), error);
    EXPECT_FALSE(error);
    return BeginningOfExport(newerLines).FindIn(olderLines);
}

void ExpectNot(const CommonLines& common, Reason why) {
    EXPECT_EQ(common.What, Outcome::None);
    EXPECT_EQ(static_cast<int>(common.Why), static_cast<int>(why));
}

// Lines of the separated generation, a second each, without a date.
std::string ClockLines(int begin, int end) {
    std::string lines;
    for (int number = begin; number < end; ++number)
        lines += "Reset                                       06:22:" + std::to_string(number) + "\r\n";
    return lines;
}

std::string Repeated(const std::string& text, int times) {
    std::string repeated;
    for (int i = 0; i < times; ++i)
        repeated += text;
    return repeated;
}

} // namespace

TEST(StitchLines, NewerBeginsWithinOlder) {
    const CommonLines common = Find(StampedLines(0, 30), StampedLines(19, 50));
    EXPECT_EQ(common.What, Outcome::Continues);
    EXPECT_EQ(common.Lines, 10U);
    EXPECT_EQ(common.Place, 20U);
    EXPECT_TRUE(common.FirstLineIsWhole);
}

TEST(StitchLines, CutFirstAndUnfinishedLastLineDoNotCount) {
    const std::string newer = StampedLines(19, 50);
    const CommonLines common = Find(StampedLines(0, 30) + "BERR:  un", newer.substr(40));
    EXPECT_EQ(common.What, Outcome::Continues);
    EXPECT_EQ(common.Lines, 10U);
    EXPECT_EQ(common.Place, 20U);
    EXPECT_FALSE(common.FirstLineIsWhole);
    ExpectNot(Find(StampedLines(0, 30), "another end\r\n" + StampedLines(20, 50)), Reason::FirstLineDiffers);
}

TEST(StitchLines, BothMayBeginAtTheSameLine) {
    const CommonLines common = Find(StampedLines(0, 10), StampedLines(0, 50));
    EXPECT_EQ(common.What, Outcome::Continues);
    EXPECT_EQ(common.Lines, 9U);
    EXPECT_EQ(common.Place, 1U);
}

TEST(StitchLines, EightLinesAreEnough) {
    EXPECT_EQ(Find(StampedLines(0, 30), StampedLines(21, 50)).What, Outcome::Continues);
    const CommonLines seven = Find(StampedLines(0, 30), StampedLines(22, 50));
    ExpectNot(seven, Reason::TooFew);
    EXPECT_EQ(seven.Lines, 7U);
    ExpectNot(Find(StampedLines(0, 30), StampedLines(30, 50)), Reason::NoneInCommon);
    ExpectNot(Find(StampedLines(0, 30), ""), Reason::NoneInCommon);
    ExpectNot(Find("", StampedLines(0, 30)), Reason::NoneInCommon);
}

TEST(StitchLines, AStampIsAmongThem) {
    std::string message;
    for (int i = 0; i < 20; ++i)
        message += "  line " + std::to_string(i) + "\r\n";
    const std::string older = StampedLine(1) + "\r\n" + message;
    ExpectNot(Find(older, message + StampedLines(2, 20)), Reason::NoStamp);
    EXPECT_EQ(Find(StampedLines(0, 2) + message, older + StampedLines(2, 20)).What, Outcome::None)
        << "line 0 is left out";
    EXPECT_EQ(Find(StampedLines(0, 2) + message, StampedLines(0, 2) + message + StampedLines(2, 20)).What,
              Outcome::Continues);
}

TEST(StitchLines, LineEndsAreBytes) {
    std::string newer = StampedLines(10, 50);
    std::erase(newer, '\r');
    ExpectNot(Find(StampedLines(0, 30), newer), Reason::NoneInCommon);
}

TEST(StitchLines, HoleIsNeverFilled) {
    ExpectNot(Find(StampedLines(0, 20) + StampedLines(22, 30), StampedLines(10, 50)), Reason::NoneInCommon);
    ExpectNot(Find(StampedLines(0, 30), StampedLines(15, 20) + StampedLines(21, 50)), Reason::NoneInCommon);
}

TEST(StitchLines, WhatFitsAtSeveralPlacesIsRefused) {
    const std::string block = StampedLines(0, 12);
    ExpectNot(Find(block + block, block.substr(8) + block + StampedLines(20, 30)), Reason::SeveralPlaces);
}

TEST(StitchLines, EqualLinesOfOneSecondShowNoPlace) {
    const std::string equal = StampedLine(7) + "\r\n";
    // How many of the equal lines are the same ones cannot be seen, also where only one place has eight of
    // them.
    for (const int newer : {9, 10, 12, 200})
        ExpectNot(
            Find(StampedLines(0, 7) + Repeated(equal, 20), Repeated(equal, newer) + StampedLines(8, 20)),
            Reason::SeveralPlaces);
    // A line before the run shows it.
    EXPECT_EQ(Find(StampedLines(0, 7) + Repeated(equal, 20),
                   StampedLines(5, 7) + Repeated(equal, 25) + StampedLines(8, 20))
                  .What,
              Outcome::Continues);
    // So does one behind it.
    EXPECT_EQ(Find(StampedLines(0, 7) + Repeated(equal, 20) + StampedLines(8, 9),
                   Repeated(equal, 11) + StampedLines(8, 20))
                  .What,
              Outcome::Continues);
}

TEST(StitchLines, FilesOfEqualLinesTakeLinearTime) {
    const std::string equal = StampedLine(7) + "\r\n";
    ExpectNot(Find(Repeated(equal, 200'000), Repeated(equal, 100'000) + "a\r\n"), Reason::SeveralPlaces);
    ExpectNot(Find(Repeated(equal, 200'000) + "b\r\n", Repeated(equal, 100'000) + "a\r\n"),
              Reason::NoneInCommon);
    ExpectNot(Find(Repeated(equal, 200'000), Repeated(equal, 150'000)), Reason::SeveralPlaces);
}

TEST(StitchLines, ContainedExportAddsNothing) {
    const CommonLines middle = Find(StampedLines(0, 40), StampedLines(10, 30).substr(20));
    EXPECT_EQ(middle.What, Outcome::Contained);
    EXPECT_EQ(middle.Place, 11U);
    EXPECT_EQ(middle.Lines, 19U);
    EXPECT_EQ(Find(StampedLines(0, 40), StampedLines(10, 40)).What, Outcome::Contained);
    EXPECT_EQ(Find(StampedLines(0, 40) + "BERR", StampedLines(10, 40) + "BE").What, Outcome::Contained);
    EXPECT_EQ(Find(StampedLines(0, 40) + "BE", StampedLines(10, 40) + "BERR").What, Outcome::Continues)
        << "its unfinished line is longer";
    ExpectNot(Find(StampedLines(0, 40), StampedLines(10, 15)), Reason::TooFew);
}

TEST(StitchLines, OperationHeadingsMustBeTheSame) {
    const std::string one = "Operation Logbook Version 1.0\r\n";
    const CommonLines common = Find(one + StampedLines(0, 30), one + StampedLines(10, 50));
    EXPECT_EQ(common.What, Outcome::Continues);
    EXPECT_EQ(common.Place, 11U);
    EXPECT_EQ(common.Lines, 19U);
    ExpectNot(Find(one + StampedLines(0, 30), "Operation Logbook Version 1.1\r\n" + StampedLines(10, 50)),
              Reason::OtherHeading);
    ExpectNot(Find(StampedLines(0, 30), one + StampedLines(10, 50)), Reason::OtherHeading);
    ExpectNot(Find(one + StampedLines(0, 30), StampedLines(40, 60)), Reason::OtherHeading);
}

TEST(StitchLines, SeparatorAtTheBeginningMayBeALineOrAHeading) {
    const std::string older = Monday + ClockLines(10, 40) + Tuesday + ClockLines(40, 60);
    // A line: it is in the older export at that place, and the line below it was not cut.
    const CommonLines line = Find(older, Tuesday + ClockLines(40, 80));
    EXPECT_EQ(line.What, Outcome::Continues);
    EXPECT_EQ(line.Lines, 20U);
    // A heading that was written for the export.
    const CommonLines heading = Find(older, Tuesday + ClockLines(45, 80).substr(20));
    EXPECT_EQ(heading.What, Outcome::Continues);
    EXPECT_EQ(heading.Lines, 14U);
    // Another date: the same clock times on another day.
    EXPECT_EQ(Find(older, Monday + ClockLines(45, 80)).What, Outcome::None);
    EXPECT_EQ(Find(ClockLines(0, 3) + older, Tuesday + ClockLines(45, 80)).What, Outcome::None)
        << "the older one is read as another generation";
}

TEST(StitchLines, WithoutAHeadingTheDateMustBeAmongTheLines) {
    const std::string older = Monday + ClockLines(10, 40) + Tuesday + ClockLines(40, 60);
    ExpectNot(Find(older, ClockLines(45, 80)), Reason::NoStamp);
    EXPECT_EQ(Find(older, ClockLines(35, 40) + Tuesday + ClockLines(40, 80)).What, Outcome::Continues);
    // What is left of a separator line does not tell its date: the same times of the next day are not the
    // same lines.
    const std::string cut = std::string("_________Wed Jan 06 2010____________\r\n").substr(28);
    ExpectNot(Find(Monday + ClockLines(50, 60) + Tuesday + ClockLines(10, 40),
                   cut + ClockLines(10, 40) + ClockLines(50, 60)),
              Reason::NoStamp);
}
