// SPDX-License-Identifier: MIT
#include "support/ReadText.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* StampText = "04.01.2010 12:34:56.789";

// Makes the file long enough for a table with room for more than one entry; the lines match no keyword.
std::string Classic(const std::vector<std::string>& lines) {
    return "Logbook\r\n" + Lines(lines) + std::string(300, 'x') + "\r\n";
}

} // namespace

TEST(ClassicLine, EachKeywordHasItsTypeAndIcon) {
    EXPECT_EQ(EntriesOf(Classic({Header("RESET:")})), "7 8 [] [] [04.01.2010 12:34:56.789] \n");
    EXPECT_EQ(EntriesOf(Classic({Header("BERR:    bus 3")})), "4 4 [] [] [04.01.2010 12:34:56.789] bus 3\n");
    EXPECT_EQ(EntriesOf(Classic({Header("Key:     ENT down")})),
              "6 5 [] [] [04.01.2010 12:34:56.789] ENT down\n");
    EXPECT_EQ(EntriesOf(Classic({Header("PLC ERROR: P12")})),
              "3 3 [PLC] [] [04.01.2010 12:34:56.789] : P12\n");
    EXPECT_EQ(EntriesOf(Classic({Header("PLC MESSAGE: M1")})),
              "1 1 [PLC] [] [04.01.2010 12:34:56.789] GE: M1\n");
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    GEO AXIS"), "text"})),
              "1 1 [GEO] [AXIS] [04.01.2010 12:34:56.789] text\n");
    EXPECT_EQ(EntriesOf(Classic({Header("WARNING: GEO AXIS"), "text"})),
              "2 2 [GEO] [AXIS] [04.01.2010 12:34:56.789] text\n");
    EXPECT_EQ(EntriesOf(Classic({Header("ERROR:   GEO AXIS"), "text"})),
              "3 3 [GEO] [AXIS] [04.01.2010 12:34:56.789] text\n");
    EXPECT_EQ(EntriesOf(Classic({Header("FATAL:   GEO AXIS"), "text"})),
              "4 4 [GEO] [AXIS] [04.01.2010 12:34:56.789] text\n");
}

TEST(ClassicLine, KeywordsAreCaseSensitiveAndStandAtTheStart) {
    for (const char* line : {"Reset:", "KEY:", "Info:", " RESET:", "xRESET:", "STIB", "Err:", "",
                             "PLC ERRORS: P12", "PLC MESSAGES: M1"})
        EXPECT_EQ(EntriesOf(Classic({Header(line)})), "-1 1 [] [] [] \n") << line;
}

TEST(ClassicLine, StatusWordsInMixedCaseChooseTheIcon) {
    const auto status = [](const char* word) {
        return EntriesOf(Classic({Header(std::string("STIB:    ") + word)}));
    };
    EXPECT_EQ(status("On"), "5 9 [] [] [04.01.2010 12:34:56.789] On\n");
    EXPECT_EQ(status("Blink"), "5 10 [] [] [04.01.2010 12:34:56.789] Blink\n");
    EXPECT_EQ(status("Off"), "5 11 [] [] [04.01.2010 12:34:56.789] Off\n");
    EXPECT_EQ(status("ON"), "5 1 [] [] [04.01.2010 12:34:56.789] ON\n");
    EXPECT_EQ(status("On x"), "5 1 [] [] [04.01.2010 12:34:56.789] On x\n");
}

TEST(ClassicLine, StampLengthIsToldByTheLinesEnd) {
    EXPECT_EQ(EntriesOf(Classic({Header("Key:     a", "04.01.2010 12:34:56")})),
              "6 5 [] [] [04.01.2010 12:34:56] a\n");
    // Two blanks eleven characters before the end: the stamp has one character more.
    EXPECT_EQ(EntriesOf(Classic({Header("Key:     a", "04.01.10  0 12:34:56")})),
              "6 5 [] [] [04.01.10  0 12:34:56] a\n");
}

TEST(ClassicLine, OneBlankAloneMakesNoLongerStamp) {
    for (const char* stamp : {"04.01.2 10 12:34:56", "04.01.20 0 12:34:56"})
        EXPECT_EQ(EntriesOf(Classic({Header("Key:     a", stamp)})),
                  std::string("6 5 [] [] [") + stamp + "] a\n");
}

TEST(ClassicLine, LongDataPushesTheStamp) {
    const std::string data(60, 'd');
    EXPECT_EQ(EntriesOf(Classic({"BERR:    " + data + StampText})),
              "4 4 [] [] [" + std::string(StampText) + "] " + data + "\n");
}

TEST(ClassicLine, ErrorWithMessageTakesItsSenderFromTheMessage) {
    EXPECT_EQ(EntriesOf(Classic({Header("ERR:     GEO AXIS"), " P12 door"})),
              "3 3 [PLC] [AXIS] [04.01.2010 12:34:56.789] P12 door\n");
    EXPECT_EQ(EntriesOf(Classic({Header("ERR:     GEO AXIS"), " Yscript"})),
              "3 3 [PYTHON] [AXIS] [04.01.2010 12:34:56.789] Yscript\n");
    EXPECT_EQ(EntriesOf(Classic({Header("ERR:     GEO"), " axis", " stopped"})),
              "3 3 [MAIN] [] [04.01.2010 12:34:56.789] axis | stopped | \n");
    EXPECT_EQ(EntriesOf(Classic({Header("ERR:     GEO AXIS"), ""})),
              "3 3 [MAIN] [AXIS] [04.01.2010 12:34:56.789] \n");
}

TEST(ClassicLine, ErrorOnOneLineCarriesItsData) {
    EXPECT_EQ(EntriesOf(Classic({Header("ERR:     PLC off")})),
              "3 3 [PLC] [] [04.01.2010 12:34:56.789] PLC off\n");
    EXPECT_EQ(EntriesOf(Classic({Header("ERR:     N938 key")})),
              "3 3 [MAIN] [] [04.01.2010 12:34:56.789] N938 key\n");
}

TEST(ClassicLine, AccessErrorOfTheLogbookGivesNoEntry) {
    EXPECT_EQ(EntriesOf(Classic({Header("ERR:     RD:ACCESSERR LOGBOOK 12")})), "-1 1 [] [] [] \n");
    EXPECT_EQ(EntriesOf(Classic({Header("ERR:     RD:ACCESSERR LOGBOOK")})), "-1 1 [] [] [] \n");
    EXPECT_EQ(EntriesOf(Classic({Header("ERR:     RD:ACCESSERR LOGBOO")})),
              "3 3 [MAIN] [] [04.01.2010 12:34:56.789] RD:ACCESSERR LOGBOO\n");
    EXPECT_EQ(EntriesOf(Classic({Header("ERR:     RD:ACCESSERR FILE")})),
              "3 3 [MAIN] [] [04.01.2010 12:34:56.789] RD:ACCESSERR FILE\n");
}

TEST(ClassicLine, ContinuationLinesAreJoinedWithATrailingSeparator) {
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    GEO"), "first", "  second  ", " third", "RESET"})),
              "1 1 [GEO] [] [04.01.2010 12:34:56.789] first | second | third | \n");
}

TEST(ClassicLine, EmptyLineContinues) {
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    GEO"), "first", "", "third"})),
              "1 1 [GEO] [] [04.01.2010 12:34:56.789] first |  | \n");
}

TEST(ClassicLine, MessageAtTheFilesEnd) {
    const std::string begin = std::string(300, 'x') + "\r\n" + Header("INFO:    GEO");
    EXPECT_EQ(EntriesOf(begin), "1 1 [GEO] [] [04.01.2010 12:34:56.789] \n");
    EXPECT_EQ(EntriesOf(begin + "\r\ntext"), "1 1 [GEO] [] [04.01.2010 12:34:56.789] text\n");
    EXPECT_EQ(EntriesOf(begin + "\r\ntext\r\n more"),
              "1 1 [GEO] [] [04.01.2010 12:34:56.789] text | more | \n");
    EXPECT_EQ(EntriesOf(begin + "\r\ntext\r\n more\r\n\r\n"),
              "1 1 [GEO] [] [04.01.2010 12:34:56.789] text | more |  | \n");
}

TEST(ClassicLine, HeaderFieldIsCutAtItsFirstBlank) {
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:      GEO   AXIS MON"), "x"})),
              "1 1 [GEO] [AXIS MON] [04.01.2010 12:34:56.789] x\n");
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    ABCDEFGHIJKLMNOPQRSTUVWXYZ"), "x"})),
              "1 1 [ABCDEFGHIJKLMNOPQRSTUVW] [] [04.01.2010 12:34:56.789] x\n");
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:"), "x"})), "1 1 [] [] [04.01.2010 12:34:56.789] x\n");
}

TEST(ClassicLine, RemoteDebugDumpIsShortened) {
    std::string columns = "00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F";
    columns.resize(50, ' ');
    // Column 50 of what is left holds the four characters that are put in front.
    const std::string dump = std::string(49, 'a') + "WXYZ" + std::string(10, 'b');
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    REMO DEB:S01"), " " + columns + dump})),
              "1 12 [REMO] [DEB:S01] [04.01.2010 12:34:56.789] WXYZ | " + dump + "\n");
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    REMO DEB:R01"), " " + columns + dump})),
              "1 13 [REMO] [DEB:R01] [04.01.2010 12:34:56.789] WXYZ | " + dump + "\n");
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    REMO DEB:R01"), dump})),
              "1 13 [REMO] [DEB:R01] [04.01.2010 12:34:56.789] WXYZ | " + dump + "\n");
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    REMO DEB:R01"), "short"})),
              "1 13 [REMO] [DEB:R01] [04.01.2010 12:34:56.789]  | short\n");
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    REMO DEB:X01"), dump})),
              "1 1 [REMO] [DEB:X01] [04.01.2010 12:34:56.789] " + dump + "\n");
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    GEO DEB:S01"), dump})),
              "1 1 [GEO] [DEB:S01] [04.01.2010 12:34:56.789] " + dump + "\n");
}

TEST(ClassicLine, ClearedErrorHasItsIcon) {
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    GEO ERRCLEARED"), "N938"})),
              "1 14 [GEO] [ERRCLEARED] [04.01.2010 12:34:56.789] N938\n");
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    GEO ERRCLEARED2"), "N938"})),
              "1 1 [GEO] [ERRCLEARED2] [04.01.2010 12:34:56.789] N938\n");
    EXPECT_EQ(EntriesOf(Classic({Header("WARNING: GEO ERRCLEARED"), "N938"})),
              "2 2 [GEO] [ERRCLEARED] [04.01.2010 12:34:56.789] N938\n");
}

TEST(ClassicLine, RegisterBlockEndsWithItsPcLine) {
    EXPECT_EQ(EntriesOf(Classic({Header("BREG:"), " D0=1", "", " A0=2 PC=3", Header("RESET:")})),
              "4 4 [] [] [04.01.2010 12:34:56.789] D0=1 |  | A0=2 PC=3 | \n"
              "7 8 [] [] [04.01.2010 12:34:56.789] \n");
    EXPECT_EQ(EntriesOf(Classic({Header("BREG:    PC"), Header("RESET:")})),
              "4 4 [] [] [04.01.2010 12:34:56.789] \n"
              "7 8 [] [] [04.01.2010 12:34:56.789] \n");
}

TEST(ClassicLine, RegisterBlockTakesEventsInUntilItsPcLine) {
    EXPECT_EQ(EntriesOf(Classic({Header("BREG:"), "RESET:", "PC"})),
              "4 4 [] [] [04.01.2010 12:34:56.789] RESET: | PC | \n");
}

TEST(ClassicLine, RegisterBlockWithoutPcLineNeverFinishesUntilStopped) {
    ReadResult result;
    result.Progress.StopAfterRounds = 5;
    ReadText(Classic({Header("RESET:"), Header("BREG:"), " D0=1"}), result);
    EXPECT_FALSE(result.Read);
    EXPECT_EQ(result.Progress.EventRounds, 5);
    EXPECT_EQ(result.Book.LoadState, LoadStates::Reading);
    EXPECT_EQ(Dump(result.Book.Entries), "7 8 [] [] [04.01.2010 12:34:56.789] \n");
}

TEST(ClassicLine, KeywordLineTooShortForItsStampEndsTheRead) {
    const std::string before = Header("RESET:");
    const std::string kept = "7 8 [] [] [04.01.2010 12:34:56.789] \nerror 2\n";
    for (const char* line :
         {"RESET:", "BERR: x", "BREG:", "ERR: x", "Key:", "STIB: On", "PLC ERROR:", "INFO:"})
        EXPECT_EQ(EntriesOf(Classic({before, line, before})), kept) << line;
}

TEST(ClassicLine, LineTooShortForItsDataEndsTheRead) {
    const std::string line = "Key:     04.01.2010 12:34:56"; // 28 characters; data needs 29
    ASSERT_EQ(line.size(), 28U);
    EXPECT_EQ(EntriesOf(Classic({line})), "error 2\n");
    EXPECT_EQ(EntriesOf(Classic({" " + line, "Key:      04.01.2010 12:34:56"})),
              "6 5 [] [] [04.01.2010 12:34:56] \n");
    // With milliseconds it needs 32.
    EXPECT_EQ(EntriesOf(Classic({"Key:    04.01.2010 12:34:56.789"})), "error 2\n");
    EXPECT_EQ(EntriesOf(Classic({"Key:     04.01.2010 12:34:56.789"})),
              "6 5 [] [] [04.01.2010 12:34:56.789] \n");
}

TEST(ClassicLine, TextIsWindows1252) {
    EXPECT_EQ(EntriesOf(Classic({Header("INFO:    T\xDCR K\xDCHL"), "K\xFChlmittel zu hei\xDF"})),
              "1 1 [TÜR] [KÜHL] [04.01.2010 12:34:56.789] Kühlmittel zu heiß\n");
}

TEST(ClassicLine, ColumnsCountCharactersNotBytesOfUtf8) {
    std::string line = "Key:     \xE4\xF6\xFC";
    line.resize(49, ' ');
    EXPECT_EQ(EntriesOf(Classic({line + StampText})), "6 5 [] [] [04.01.2010 12:34:56.789] äöü\n");
}
