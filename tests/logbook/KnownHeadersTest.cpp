// SPDX-License-Identifier: MIT
#include "support/ReadText.h"

#include <gtest/gtest.h>

namespace {

const std::string At = " [04.01.2010 12:34:56.789] ";

// Reads the events twice over and more: what is known of a header must not change what it gives.
std::string Repeated(const std::string& heading, const std::vector<std::string>& lines) {
    return heading + "\r\n" + Lines(lines) + Lines(lines) + Lines(lines);
}

std::string Threefold(const std::string& entries) { return entries + entries + entries; }

} // namespace

TEST(KnownHeaders, ClassicHeadersGiveTheSameEachTime) {
    EXPECT_EQ(EntriesOf(Repeated("Logbook", {Header("INFO:    GEO AXIS"), "  text", Header("INFO:    GEO"),
                                             "  text", Header("WARNING: GEO AXIS"), "  text"})),
              Threefold("1 1 [GEO] [AXIS]" + At + "text\n1 1 [GEO] []" + At + "text\n2 2 [GEO] [AXIS]" + At +
                        "text\n"));
}

TEST(KnownHeaders, ErrorsWithTheSameHeaderHaveTheReporterOfTheirMessage) {
    const std::string header = Header("ERR:     PYTHON SCRIPT");
    EXPECT_EQ(
        EntriesOf(Repeated("Logbook", {header, "  P12", header, "  Y12", header, "  x", header, "  P13"})),
        Threefold("3 3 [PLC] [SCRIPT]" + At + "P12\n3 3 [PYTHON] [SCRIPT]" + At + "Y12\n3 3 [MAIN] [SCRIPT]" +
                  At + "x\n3 3 [PLC] [SCRIPT]" + At + "P13\n"));
}

TEST(KnownHeaders, DebugDumpsAndClearedErrorsKeepTheirIcons) {
    EXPECT_EQ(
        EntriesOf(Repeated("Logbook", {Header("INFO:    REMO DEB:S"), "text", Header("INFO:    REMO DEB:R"),
                                       "text", Header("INFO:    GEO ERRCLEARED"), "text"})),
        Threefold("1 12 [REMO] [DEB:S]" + At + " | text\n1 13 [REMO] [DEB:R]" + At +
                  " | text\n1 14 [GEO] [ERRCLEARED]" + At + "text\n"));
}

TEST(KnownHeaders, TheSameInfoMayBeARestart) {
    EXPECT_EQ(EntriesOf(Repeated("Operation Logbook Version 1.0",
                                 {Header("Info:    MAIN"), "  AUTO", Header("Info:    MAIN"),
                                  "  SYSTEM START", Header("Info:    MAIN"), "  MANUAL"})),
              Threefold("1 1 [MAIN] []" + At + "AUTO\n7 8 [MAIN] []" + At + "SYSTEM START\n1 1 [MAIN] []" +
                        At + "MANUAL\n"));
}

TEST(KnownHeaders, SendersThatDifferInTheirLastColumnAreTwo) {
    const std::string sender(37, 's');
    EXPECT_EQ(EntriesOf(Repeated("Operation Logbook Version 1.0", {Header("Info: " + sender + "A"), "  x",
                                                                   Header("Info: " + sender + "B"), "  x"})),
              Threefold("1 1 [" + sender + "A] []" + At + "x\n1 1 [" + sender + "B] []" + At + "x\n"));
}

TEST(KnownHeaders, StrokesOfTheSameKeyMayBecomeAString) {
    const std::string key = Header("Key:     ENT");
    EXPECT_EQ(EntriesOf(Repeated("Operation Logbook Version 1.0",
                                 {key, "  0x0041 -> A", Header("Mouse:"), "  1,2", key, "  0x0041 -> A", key,
                                  "  0x0042 -> B", Header("Mouse:"), "  1,2"})),
              Threefold("6 5 [ENT] []" + At + "0x0041 -> A\n1 7 [] [Mouse]" + At + "1,2\n9 5 [ENT] []" + At +
                        "AB\n1 7 [] [Mouse]" + At + "1,2\n"));
}

TEST(KnownHeaders, MoreHeadersThanAreKeptAreReadAsWell) {
    std::vector<std::string> lines;
    std::string entries;
    for (int i = 0; i < 5000; ++i) {
        const std::string sender = "S" + std::to_string(i);
        lines.insert(lines.end(), {Header("INFO:    " + sender + " NAME"), "x"});
        entries += "1 1 [" + sender + "] [NAME]" + At + "x\n";
    }
    EXPECT_EQ(EntriesOf(Repeated("Logbook", lines)), Threefold(entries));
}

TEST(KnownHeaders, LinesTooShortToBeKnownAreReadAsWell) {
    EXPECT_EQ(EntriesOf(Repeated("Logbook", {"INFO:    GEO AXIS 04.01.2010 12:34:56", "text"})),
              Threefold("1 1 [GEO] [AXIS 04.01.2010 12:] [04.01.2010 12:34:56] text\n"));
}
