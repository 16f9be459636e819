// SPDX-License-Identifier: MIT
#include "support/ReadText.h"

#include <gtest/gtest.h>

namespace {

// The separator, an event that the first call takes, and the lines.
std::string Separated(const std::vector<std::string>& lines) {
    return Lines({"_________Mon Jan 04 2010______________",
                  "First line of the file, long enough for a table with room"}) +
           Lines(lines) + std::string(300, 'x') + "\r\n";
}

// A header line with the clock in column 45.
std::string Event(std::string_view text, std::string_view clock = "12:34:56") {
    std::string line(text);
    line.resize(44, ' ');
    return line.append(clock);
}

constexpr const char* At = "[04.01.2010 12:34:56]";

} // namespace

TEST(SeparatedLine, EachKeywordHasItsTypeAndIcon) {
    EXPECT_EQ(EntriesOf(Separated({Event("Reset")})), std::string("7 8 [] [] ") + At + " \n");
    EXPECT_EQ(EntriesOf(Separated({Event("Blinkerror:"), "  text "})),
              std::string("4 4 [] [] ") + At + " text\n");
    EXPECT_EQ(EntriesOf(Separated({Event("Registers(Blinkerror):"), "  D0=1"})),
              std::string("4 4 [] [] ") + At + " \n");
    EXPECT_EQ(EntriesOf(Separated({Event("PLC Error:"), " P1"})),
              std::string("3 3 [PLC] [] ") + At + " P1\n");
    EXPECT_EQ(EntriesOf(Separated({Event("PLC Message:"), " M1"})),
              std::string("1 1 [PLC] [] ") + At + " M1\n");
    EXPECT_EQ(EntriesOf(Separated({Event("Info:    GEO AXIS"), " text"})),
              std::string("1 1 [GEO] [AXIS] ") + At + " text\n");
    EXPECT_EQ(EntriesOf(Separated({Event("Warning: GEO AXIS"), " text"})),
              std::string("2 2 [GEO] [AXIS] ") + At + " text\n");
}

TEST(SeparatedLine, WarningTakesClockAndSeparatorDate) {
    EXPECT_EQ(EntriesOf(Separated({Event("Warning: GEO"), "x"})), "2 2 [GEO] [] [04.01.2010 12:34:56] x\n");
}

TEST(SeparatedLine, KeywordsAreCaseSensitive) {
    for (const char* line : {"RESET", "INFO:", "KEY:", "error:", "Plc Error:", "Fatal:", "Fatal error:"})
        EXPECT_EQ(EntriesOf(Separated({Event(line)})), "-1 1 [] [] [] \n") << line;
}

TEST(SeparatedLine, StatusWordsInUpperCaseChooseTheIcon) {
    const auto status = [](const char* word) {
        return EntriesOf(Separated({Event(std::string("Stib:    ") + word)}));
    };
    EXPECT_EQ(status("ON"), std::string("5 9 [] [] ") + At + " ON\n");
    EXPECT_EQ(status("BLINK"), std::string("5 10 [] [] ") + At + " BLINK\n");
    EXPECT_EQ(status("OFF"), std::string("5 11 [] [] ") + At + " OFF\n");
    EXPECT_EQ(status("On"), std::string("5 1 [] [] ") + At + " On\n");
}

TEST(SeparatedLine, LongStampBringsItsOwnDate) {
    EXPECT_EQ(EntriesOf(Separated({Event("Reset", "12:34:56.789 Tue Feb 16 2010")})),
              "7 8 [] [] [16.02.2010 12:34:56.789] \n");
    EXPECT_EQ(EntriesOf(Separated({Event("Reset", "12:34:56 Tue Feb 16 2010")})),
              "7 8 [] [] [16.02.2010 12:34:56] \n");
    // Nine characters count as a stamp of its own, even without a date in it.
    EXPECT_EQ(EntriesOf(Separated({Event("Reset", "12:34:56x")})), "7 8 [] [] [ 12:34:56] \n");
}

TEST(SeparatedLine, LineUpToColumn44HasNoClock) {
    // "" and the date behind a blank: the clock's place holds the date's first characters.
    EXPECT_EQ(EntriesOf(Separated({"Reset"})), "7 8 [] [] [  Mon Jan] \n");
}

TEST(SeparatedLine, ClockBeginsInColumn44) {
    std::string line = "Reset";
    line.resize(43, '-');
    EXPECT_EQ(EntriesOf(Separated({line + "12:34:56"})), std::string("7 8 [] [] ") + At + " \n");
    EXPECT_EQ(EntriesOf(Separated({line + " 12:34:56"})), std::string("7 8 [] [] ") + At + " \n");
    EXPECT_EQ(EntriesOf(Separated({line + "12:34:56.789 Tue Feb 16 2010"})),
              "7 8 [] [] [16.02.2010 12:34:56.789] \n");
}

TEST(SeparatedLine, LineHasAClockOnlyBeyondColumn44) {
    std::string line = "Reset";
    line.resize(43, '-');
    // The character in column 44 alone is no clock; with one more the two are, short as they are.
    EXPECT_EQ(EntriesOf(Separated({line + "x"})), "7 8 [] [] [  Mon Jan] \n");
    EXPECT_EQ(EntriesOf(Separated({line + "xy"})), "7 8 [] [] [0 xy Mon J] \n");
}

TEST(SeparatedLine, StatusIsTheTextOfColumns6To28) {
    const auto status = [](const std::string& text) { return EntriesOf(Separated({Event("Stib:" + text)})); };
    EXPECT_EQ(status("abcdefghijklmnopqrstuvwxyz0123456789"),
              std::string("5 1 [] [] ") + At + " abcdefghijklmnopqrstuvw\n");
    EXPECT_EQ(status("OFF                     On"), std::string("5 11 [] [] ") + At + " OFF\n");
}

TEST(SeparatedLine, NextSeparatorChangesTheDateAndGoesOnWithTheNextLine) {
    EXPECT_EQ(
        EntriesOf(Separated({Event("Key:     ENT"), "_________Tue Feb 16 2010____", Event("Key:     F1")})),
        "6 5 [] [] [04.01.2010 12:34:56] ENT\n"
        "6 5 [] [] [16.02.2010 12:34:56] F1\n");
}

TEST(SeparatedLine, SeparatorBelowASeparatorIsNoEvent) {
    EXPECT_EQ(EntriesOf(Separated(
                  {"_________Tue Feb 16 2010____", "_________Wed Feb 17 2010____", Event("Reset")})),
              "7 8 [] [] [16.02.2010 12:34:56] \n");
}

TEST(SeparatedLine, ErrorWithoutHeaderTakesTheNextLine) {
    EXPECT_EQ(EntriesOf(Separated({Event("Error:"), "  P12 door"})),
              std::string("3 3 [PLC] [] ") + At + " P12 door\n");
    EXPECT_EQ(EntriesOf(Separated({Event("Error:"), "  Y script"})),
              std::string("3 3 [PYTHON] [] ") + At + " Y script\n");
    EXPECT_EQ(EntriesOf(Separated({Event("Error:   GEO AXIS"), "  P12"})),
              std::string("3 3 [MAIN] [] ") + At + " \n");
}

TEST(SeparatedLine, AccessErrorOfTheLogbookIsKept) {
    EXPECT_EQ(EntriesOf(Separated({Event("Error:"), "RD:ACCESSERR LOGBOOK"})),
              std::string("3 3 [MAIN] [] ") + At + " RD:ACCESSERR LOGBOOK\n");
}

TEST(SeparatedLine, KeyTextEndsTwoCharactersBeforeTheClocksColon) {
    EXPECT_EQ(EntriesOf(Separated({Event("Key:     ENT down")})),
              std::string("6 5 [] [] ") + At + " ENT down\n");
    EXPECT_EQ(EntriesOf(Separated({"Key: no clock at all"})), "6 5 [] [] [  Mon Jan] no clock at all\n");
    EXPECT_EQ(EntriesOf(Separated({"Key:ab:"})), "6 5 [] [] [  Mon Jan] \n");
}

TEST(SeparatedLine, KeyTextWithItsColonTooEarlyEndsTheRead) {
    EXPECT_EQ(EntriesOf(Separated({"Key:a:"})), "error 2\n");
    EXPECT_EQ(EntriesOf(Separated({"Key::"})), "error 2\n");
}

TEST(SeparatedLine, ContinuationLinesAndDumpsAsInTheClassicGeneration) {
    EXPECT_EQ(EntriesOf(Separated({Event("Warning: GEO"), " a", " b"})),
              std::string("2 2 [GEO] [] ") + At + " a | b | \n");
    EXPECT_EQ(EntriesOf(Separated({Event("Info:    GEO ERRCLEARED"), " a"})),
              std::string("1 14 [GEO] [ERRCLEARED] ") + At + " a\n");
    EXPECT_EQ(EntriesOf(Separated({Event("Info:    REMO DEB:S1"), " a"})),
              std::string("1 12 [REMO] [DEB:S1] ") + At + "  | a\n");
}

TEST(SeparatedLine, EventBelowTheFirstSeparatorIsNotStored) {
    EXPECT_EQ(EntriesOf(Lines({"_________Mon Jan 04 2010_____", Event("Reset"), Event("Key:     ENT"),
                               Event("Info:    GEO"), "  text"})),
              "6 5 [] [] [04.01.2010 12:34:56] ENT\n"
              "1 1 [GEO] [] [04.01.2010 12:34:56] text\n");
}

TEST(SeparatedLine, MessageOfTheFirstEventIsReadWithIt) {
    EXPECT_EQ(EntriesOf(Lines({"_________Mon Jan 04 2010_____", Event("Info:    GEO"), "Reset",
                               Event("Key:     ENT"), Event("Key:     F1")})),
              "6 5 [] [] [04.01.2010 12:34:56] ENT\n"
              "6 5 [] [] [04.01.2010 12:34:56] F1\n");
}
