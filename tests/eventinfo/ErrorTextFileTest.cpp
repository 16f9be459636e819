// SPDX-License-Identifier: MIT
#include "eventinfo/ErrorTextFile.h"

#include <gtest/gtest.h>

namespace {

// "kind language place", or "none".
std::string Told(std::string_view path) {
    const std::optional<ErrorTextFile> file = ErrorTextFileOf(path);
    if (!file)
        return "none";
    const std::string language = !file->TextLanguage ? "both" : file->TextLanguage->IsGerman() ? "de" : "en";
    return std::to_string(static_cast<int>(file->Kind)) + " " + language + " " + file->PlaceName();
}

} // namespace

TEST(ErrorTextFile, IsRecognisedByItsName) {
    EXPECT_EQ(Told("NCKERNEL_DE.XMT"), "0 de NCKERNEL_DE.XMT");
    EXPECT_EQ(Told("a/b/NCKERNEL_EN.XMT"), "0 en NCKERNEL_EN.XMT");
    EXPECT_EQ(Told("GERMAN\\ErrorText.csv"), "1 de GERMAN/ErrorText.csv");
    EXPECT_EQ(Told("x/ENGLISH/qx_error_help.txt"), "2 en ENGLISH/qx_error_help.txt");
    for (const char* const name : {"error.a", "reason.a", "fix.a"})
        EXPECT_EQ(Told(std::string("x\\ENGLISH/") + name), std::string("3 en ENGLISH/") + name);
    EXPECT_EQ(Told("facilities.csv"), "4 both facilities.csv");
}

TEST(ErrorTextFile, CaseMakesNoDifference) {
    EXPECT_EQ(Told("export/german/ERROR.A"), "3 de GERMAN/ERROR.A");
    EXPECT_EQ(Told("nckernel_de.xmt"), "0 de nckernel_de.xmt");
    EXPECT_EQ(Told("Facilities.CSV"), "4 both Facilities.CSV");
}

TEST(ErrorTextFile, OthersAreNone) {
    for (const char* const path :
         {"", "error.a", "FRENCH/error.a", "GERMAN/old/error.a", "GERMAN/error.ab", "_DE.XMT", "A_DE.XMT.bak",
          "A_FR.XMT", "ErrorText.csv", "GERMAN", "GERMAN/", "GERMAN/facilities.txt", "x/.."})
        EXPECT_EQ(Told(path), "none") << path;
}

TEST(ErrorTextFile, NamesThatAreHardToHandleAreNone) {
    EXPECT_EQ(Told(std::string(193, 'a') + "_DE.XMT"), "0 de " + std::string(193, 'a') + "_DE.XMT");
    EXPECT_EQ(Told(std::string(194, 'a') + "_DE.XMT"), "none");
    EXPECT_EQ(Told("a\nb_DE.XMT"), "none");
    EXPECT_EQ(Told("X.qorvix-part-1234567890abcdef_EN.XMT"), "none");
}
