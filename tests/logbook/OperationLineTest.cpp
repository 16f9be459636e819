// SPDX-License-Identifier: MIT
#include "support/ReadText.h"

#include <gtest/gtest.h>

namespace {

std::string Operation(const std::vector<std::string>& lines) {
    return "Operation Logbook Version 1.0\r\n" + Lines(lines) + std::string(300, 'x') + "\r\n";
}

constexpr const char* At = "[04.01.2010 12:34:56.789]";

} // namespace

TEST(OperationLine, EachKeywordHasItsFields) {
    const std::string at = At;
    EXPECT_EQ(EntriesOf(Operation({Header("Key: ENT"), "  ENT down"})), "6 5 [ENT] [] " + at + " ENT down\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Stib: ON"), "  text"})), "5 1 [] [] " + at + " ON\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Info: GEO"), "  text"})), "1 1 [GEO] [] " + at + " text\n");
    EXPECT_EQ(EntriesOf(Operation({Header("System info: GEO"), "  text"})), "1 1 [] [] " + at + " text\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Warning: GEO"), "  text"})), "2 2 [GEO] [] " + at + " text\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Error: GEO"), "  text"})), "3 3 [GEO] [] " + at + " text\n");
    EXPECT_EQ(EntriesOf(Operation({Header("System error: GEO"), "  text"})),
              "3 3 [GEO] [] " + at + " text\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Mouse: GEO"), "  10,20"})),
              "1 7 [GEO] [Mouse] " + at + " 10,20\n");
}

TEST(OperationLine, SenderReachesToColumn44) {
    const std::string sender(60, 's');
    const auto senderOf = [&](const std::string& keyword, std::size_t length) {
        const std::string entry = EntriesOf(Operation({keyword + sender + "04.01.2010 12:34:56.789", "  x"}));
        EXPECT_EQ(entry.substr(4, length + 2), "[" + std::string(length, 's') + "]") << keyword;
    };
    senderOf("Key:", 40);
    senderOf("Info:", 39);
    senderOf("Warning:", 36);
    senderOf("Error:", 38);
    senderOf("System error:", 31);
    senderOf("Mouse:", 38);
}

TEST(OperationLine, StatusIsTheTextOfColumns6To28) {
    EXPECT_EQ(EntriesOf(Operation({Header("Stib:abcdefghijklmnopqrstuvwxyz0123456789")})),
              std::string("5 1 [] [] ") + At + " abcdefghijklmnopqrstuvw\n");
}

TEST(OperationLine, KeyCodeIsNoSender) {
    EXPECT_EQ(EntriesOf(Operation({Header("Key: 0x1234"), "  x"})), std::string("6 5 [] [] ") + At + " x\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Info: 0x1234"), "  x"})),
              std::string("1 1 [0x1234] [] ") + At + " x\n");
}

TEST(OperationLine, SystemStartIsARestart) {
    const std::string at = At;
    EXPECT_EQ(EntriesOf(Operation({Header("Info: SYS"), "  *** SYSTEM START ***"})),
              "7 8 [SYS] [] " + at + " *** SYSTEM START ***\n");
    EXPECT_EQ(EntriesOf(Operation({Header("System info:"), "  a", "  SYSTEM START"})),
              "7 8 [] [] " + at + " a | SYSTEM START\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Warning: SYS"), "  SYSTEM START"})),
              "2 2 [SYS] [] " + at + " SYSTEM START\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Mouse: SYS"), "  SYSTEM START"})),
              "1 7 [SYS] [Mouse] " + at + " SYSTEM START\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Info: SYS"), "  system start"})),
              "1 1 [SYS] [] " + at + " system start\n");
}

TEST(OperationLine, MessageLinesAreJoinedWithoutTrailingSeparator) {
    EXPECT_EQ(EntriesOf(Operation({Header("Info: GEO"), "  a ", "   b", "  c"})),
              std::string("1 1 [GEO] [] ") + At + " a  |  b | c\n");
}

TEST(OperationLine, FirstMessageLineLosesTwoCharactersWhateverTheyAre) {
    EXPECT_EQ(EntriesOf(Operation({Header("Info: GEO"), "xyz"})), std::string("1 1 [GEO] [] ") + At + " z\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Info: GEO"), "x"})), std::string("1 1 [GEO] [] ") + At + " \n");
    EXPECT_EQ(EntriesOf(Operation({Header("Info: GEO"), ""})), std::string("1 1 [GEO] [] ") + At + " \n");
}

TEST(OperationLine, SingleBlankOrEmptyLineEndsTheBlock) {
    EXPECT_EQ(EntriesOf(Operation({Header("Info: GEO"), "  a", " b", Header("Stib: ON")})),
              std::string("1 1 [GEO] [] ") + At + " a\n5 1 [] [] " + At + " ON\n");
    EXPECT_EQ(EntriesOf(Operation({Header("Info: GEO"), "  a", "", "  b"})),
              std::string("1 1 [GEO] [] ") + At + " a\n");
}

TEST(OperationLine, HeaderAtTheFilesEndHasNoData) {
    const std::string begin = "Operation Logbook Version 1.0\r\n" + std::string(300, 'x') + "\r\n";
    EXPECT_EQ(EntriesOf(begin + Header("Info: GEO")), std::string("1 1 [GEO] [] ") + At + " \n");
    EXPECT_EQ(EntriesOf(begin + Header("Info: GEO") + "\r\n  a\r\n  b"),
              std::string("1 1 [GEO] [] ") + At + " a | b\n");
}

TEST(OperationLine, UnknownLineIsDroppedWhateverItsLength) {
    EXPECT_EQ(EntriesOf(Operation({"", "x", "Fatal:", "key:", " Key:", Header("Stib: ON")})),
              std::string("5 1 [] [] ") + At + " ON\n");
}

TEST(OperationLine, KeywordLineTooShortForItsStampEndsTheRead) {
    for (const char* line : {"Key:", "Stib:", "Info: x", "Mouse: 1234"})
        EXPECT_EQ(EntriesOf(Operation({Header("Stib: ON"), line, Header("Stib: ON")})),
                  std::string("5 1 [] [] ") + At + " ON\nerror 2\n")
            << line;
}

TEST(OperationLine, TwelveCharactersAreEnoughForAStamp) {
    EXPECT_EQ(EntriesOf(Operation({"Key: 1234567"})).substr(0, 25), "6 5 [1234567] [] [Key: 12");
}
