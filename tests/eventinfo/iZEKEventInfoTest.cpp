// SPDX-License-Identifier: MIT
#include "eventinfo/iZEKEventInfo.h"

#include "base/Paths.h"
#include "base/ProgramFolder.h"
#include "eventinfo/Numbers.h"
#include "support/Abilities.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

constexpr Language English{Language::English};
constexpr Language German{Language::German};

// An entry of a text file of events, all in its three texts named after `name`.
std::string XmlEntry(int number, const std::string& name, const std::string& attributes = "") {
    return "<string id=\"i\" value=\"" + std::to_string(number) + "\"" + attributes + ">\n<text>" + name +
           "</text><text1>" + name + " cause</text1><text2>" + name + " fix</text2>\n</string>\n";
}

std::string NcBlock(int number, const std::string& name) {
    return std::to_string(number) + "\n" + name + "\n\nCause of error:\n" + name +
           " cause\nCorrective action:\n" + name + " fix\n\n";
}

// The comment on an entry of XmlEntry or NcBlock.
std::string Comment(const std::string& name) {
    return name + "\r\nReason:\r\n" + name + " cause\r\nFix:\r\n" + name + " fix";
}

class LanguageFolder : public testing::Test {
  protected:
    void Write(const std::string& name, const std::string& content) const {
        std::filesystem::create_directories((Folder.Path() / name).parent_path());
        Folder.Write(name, content);
    }

    ProposedComment Coded(std::string_view data, Language language = English) const {
        return AutoFillCommentNCK(data, language, Path());
    }
    std::optional<std::string> Classic(std::string_view data, Language language = English) const {
        return AutoFillCommentiZEK(data, language, Path());
    }
    std::string Path() const { return Folder.Path().string() + "/"; }

    TemporaryFolder Folder;
};

using AutoFillNCK = LanguageFolder;
using AutoFilliZEK = LanguageFolder;
using AutoFill = LanguageFolder;

std::optional<EventCode> Parse(std::string_view code) { return ParseEventCode(code, InitFacilityTable()); }

} // namespace

TEST(ParseEventCode, FacilityStandsBeforeTheDash) {
    EXPECT_EQ(Parse("232-0005"), (EventCode{0x232, 5}));
    EXPECT_EQ(Parse(" 232 - 1f "), (EventCode{0x232, 0x1F}));
    EXPECT_EQ(Parse("232-5-6"), (EventCode{0x232, 5}));
    EXPECT_EQ(Parse("232-"), (EventCode{0x232, 0}));
}

TEST(ParseEventCode, WithoutADashItIsFacility231) {
    EXPECT_EQ(Parse("1A"), (EventCode{0x231, 26}));
    EXPECT_EQ(Parse("  1A  "), (EventCode{0x231, 26}));
    EXPECT_EQ(Parse(""), (EventCode{0x231, 0}));
}

TEST(ParseEventCode, NumbersEndAtOtherCharacters) {
    EXPECT_EQ(Parse("232-0005 servo lag"), (EventCode{0x232, 5}));
    EXPECT_EQ(Parse("232:7-0005"), (EventCode{0x232, 5}));
    EXPECT_EQ(Parse("1A, axis X"), (EventCode{0x231, 26}));
    EXPECT_EQ(Parse("text"), (EventCode{0x231, 0}));
}

TEST(ParseEventCode, NumbersAreNotNegative) {
    EXPECT_EQ(Parse("232-8000"), (EventCode{0x232, 0x8000}));
    EXPECT_EQ(Parse("232-FFFF"), (EventCode{0x232, 0xFFFF}));
    EXPECT_EQ(Parse("232-FFFFFFFF"), (EventCode{0x232, 0xFFFFFFFF}));
}

TEST(ParseEventCode, MoreThanEightDigitsMatchNothing) {
    EXPECT_EQ(Parse("232-123456789"), (EventCode{0x232, NumberOfNothing}));
    EXPECT_EQ(Parse("123456789-5"), std::nullopt);
    EXPECT_EQ(Parse("000000232-5"), std::nullopt);
    EXPECT_EQ(Parse("00000232-5"), (EventCode{0x232, 5}));
}

TEST(ParseEventCode, FacilityMustBeInTheTable) {
    EXPECT_EQ(Parse("1-5"), std::nullopt);
    EXPECT_EQ(Parse("FFFF-5"), std::nullopt);
    EXPECT_EQ(Parse("108-5"), std::nullopt); // the one in slot 0
    EXPECT_EQ(Parse("0-5"), (EventCode{0, 5}));
    EXPECT_EQ(Parse("-5"), (EventCode{0, 5}));
    EXPECT_EQ(ParseEventCode("1A", FacilityTable()), std::nullopt);
}

TEST(GetErrorInfoPath, IsTheLanguageFolderBesideTheProgram) {
    EXPECT_EQ(GetErrorInfoPath(), ProgramFolder() + "/language/");
    const std::string program = ProgramFolder() + "/eventinfo_tests";
    EXPECT_TRUE(FileExists(program) || FileExists(program + ".exe")) << ProgramFolder();
}

TEST_F(AutoFillNCK, LayoutInEnglish) {
    Write("OPERATION_EN.XMT", XmlEntry(5, "Key"));
    EXPECT_EQ(Coded("Event: 232-0005").Text, "Key\r\nReason:\r\nKey cause\r\nFix:\r\nKey fix");
    EXPECT_EQ(Coded("Event: 232-0005").Mistake, FacilityFileMistake());
}

TEST_F(AutoFillNCK, LayoutInGermanWithReaction) {
    Write("OPERATION_DE.XMT", XmlEntry(5, "Taste", " class=\"Ev_class_2\""));
    EXPECT_EQ(Coded("Event: 232-0005", German).Text,
              "Taste\r\nUrsache:\r\nTaste cause\r\nBehebung:\r\nTaste fix\r\nReaktion:\r\nEv_class "
              "2\r\nWarnung\r\nAnzeige");
}

TEST_F(AutoFillNCK, ReactionIsGermanUnderAnEnglishLabel) {
    Write("OPERATION_EN.XMT", XmlEntry(5, "Key", " class=\"Ev_class_1\""));
    EXPECT_EQ(Coded("Event: 232-5").Text, Comment("Key") + "\r\nReaction:\r\nEv_class 1\r\nkeine Reaktion");
}

TEST_F(AutoFillNCK, EmptyTextsKeepTheirLabels) {
    Write("OPERATION_EN.XMT", "<string id=\"a\" value=\"5\">\n</string>\n");
    EXPECT_EQ(Coded("Event: 232-5").Text, "\r\nReason:\r\n\r\nFix:\r\n");
}

TEST_F(AutoFillNCK, OtherLanguagesReadEnglish) {
    Write("OPERATION_EN.XMT", XmlEntry(5, "Key"));
    Write("OPERATION_DE.XMT", XmlEntry(5, "Taste"));
    for (const std::int32_t number : {0, 2, 10, -1})
        EXPECT_EQ(Coded("Event: 232-5", {number}).Text, Comment("Key")) << number;
}

TEST_F(AutoFillNCK, CodeIsBehindTheFirstMark) {
    Write("NCKERNEL_EN.XMT", XmlEntry(26, "Kernel") + XmlEntry(27, "Other"));
    EXPECT_EQ(Coded("Event: 1A").Text, Comment("Kernel"));
    EXPECT_EQ(Coded("Before Event: 1A").Text, Comment("Kernel"));
    EXPECT_EQ(Coded("Event: 1A Event: 1B").Text, Comment("Kernel"));
    EXPECT_EQ(Coded("Event: 1A | Taste START | ").Text, Comment("Kernel"));
    for (const char* data : {"", "Event:1A", "event: 1A", "Event 1A", "1A"})
        EXPECT_EQ(Coded(data), ProposedComment()) << data;
}

TEST_F(AutoFillNCK, Facility300IsInTheCsvFileOfTheLanguage) {
    Write("ENGLISH/ErrorText.csv", "h\n12;Message;Cause|more;Fix\n");
    Write("GERMAN/ErrorText.csv", "h\n12;Meldung;Grund;Hilfe\n");
    Write("??_EN.XMT", XmlEntry(12, "never"));
    Write("ERRORTEXT_EN.XMT", XmlEntry(12, "never"));
    EXPECT_EQ(Coded("Event: 300-C").Text, "Message\r\nReason:\r\nCause\r\nmore\r\nFix:\r\nFix");
    EXPECT_EQ(Coded("Event: 300-C", German).Text, "Meldung\r\nUrsache:\r\nGrund\r\nBehebung:\r\nHilfe");
    std::filesystem::remove(Folder / "ENGLISH/ErrorText.csv");
    EXPECT_EQ(Coded("Event: 300-C").Text, std::nullopt);
}

TEST_F(AutoFillNCK, Facility0HasAFileWithoutPrefix) {
    Write("_EN.XMT", XmlEntry(5, "Zero"));
    EXPECT_EQ(Coded("Event: 0-5").Text, Comment("Zero"));
    EXPECT_EQ(Coded("Event: -5").Text, Comment("Zero"));
}

TEST_F(AutoFillNCK, UnknownFacilityAndNumberGiveNothing) {
    Write("OPERATION_EN.XMT", XmlEntry(5, "Key"));
    Write("SOFTKEY_EN.XMT", XmlEntry(5, "never")); // the facility in slot 0
    for (const char* data :
         {"Event: 232-6", "Event: 1-5", "Event: 108-5", "Event: 5", "Event: 232-000000005"})
        EXPECT_EQ(Coded(data), ProposedComment()) << data;
}

TEST_F(AutoFillNCK, NamesAreFoundWhateverTheirCase) {
    Write("operation_en.xmt", XmlEntry(5, "Key"));
    Write("English/ERRORTEXT.CSV", "h\n12;Twelve;Twelve cause;Twelve fix\n");
    EXPECT_EQ(Coded("Event: 232-5").Text, Comment("Key"));
    EXPECT_EQ(Coded("Event: 300-C").Text, Comment("Twelve"));
}

TEST_F(AutoFillNCK, FolderNeedsNoSeparatorAtItsEnd) {
    Write("OPERATION_EN.XMT", XmlEntry(5, "Key"));
    EXPECT_EQ(AutoFillCommentNCK("Event: 232-5", English, Folder.Path().string()).Text, Comment("Key"));
}

TEST_F(AutoFillNCK, FacilityFileReplacesTheBuiltInTable) {
    Write("facilities.csv", "1;FIRST;FIRST\n0x999;OWN;OWN\n");
    Write("OWN_EN.XMT", XmlEntry(5, "Own"));
    Write("FIRST_EN.XMT", XmlEntry(5, "never"));
    Write("OPERATION_EN.XMT", XmlEntry(5, "Key"));
    EXPECT_EQ(Coded("Event: 999-5"), (ProposedComment{Comment("Own"), {}}));
    EXPECT_EQ(Coded("Event: 1-5"), ProposedComment());
    EXPECT_EQ(Coded("Event: 232-5"), ProposedComment());
    std::filesystem::remove(Folder / "facilities.csv");
    EXPECT_EQ(Coded("Event: 232-5").Text, Comment("Key"));
}

TEST_F(AutoFillNCK, WrongFacilityFileIsToldAndTheBuiltInTableStands) {
    NEEDS_NAMES_WITH_CASE();
    Write("Facilities.CSV", "0x999;OWN;OWN\nwrong\n");
    Write("OWN_EN.XMT", XmlEntry(5, "Own"));
    Write("OPERATION_EN.XMT", XmlEntry(5, "Key"));
    const std::string file = Folder / "Facilities.CSV";
    const FacilityFileMistake mistake{file, FacilityFileContent::Outcome::InvalidLine, 2};
    EXPECT_EQ(Coded("Event: 232-5"), (ProposedComment{Comment("Key"), mistake}));
    EXPECT_EQ(Coded("Event: 999-5"), (ProposedComment{std::nullopt, mistake}));
    EXPECT_EQ(Coded("no code"), ProposedComment());
    EXPECT_EQ(FacilityFileMessage(Coded("Event: 1", German).Mistake, German),
              file + ": ungültiges Modul in Zeile 2");
}

TEST_F(AutoFilliZEK, LayoutInBothLanguages) {
    Write("ENGLISH/qx_error_help.txt", NcBlock(938, "Key"));
    Write("GERMAN/qx_error_help.txt", NcBlock(938, "Taste"));
    EXPECT_EQ(Classic("N938 Key without function"), "Key\r\nReason:\r\nKey cause\r\nFix:\r\nKey fix");
    EXPECT_EQ(Classic("N938 x", German), "Taste\r\nUrsache:\r\nTaste cause\r\nBehebung:\r\nTaste fix");
    EXPECT_EQ(Classic("N938 x", {4}), Comment("Key"));
}

TEST_F(AutoFilliZEK, WithoutAFixItEndsWithALineBreak) {
    Write("ENGLISH/qx_error_help.txt", "938\nKey\n\nCause of error:\nKey cause\n");
    EXPECT_EQ(Classic("N938 "), "Key\r\nReason:\r\nKey cause\r\n");
    Write("ENGLISH/error.a", "012 Coolant\n");
    EXPECT_EQ(Classic("P12 "), "Coolant\r\nReason:\r\n\r\n");
}

TEST_F(AutoFilliZEK, PIsLookedUpInTheThreeFiles) {
    Write("ENGLISH/error.a", "012 Low\n");
    Write("ENGLISH/reason.a", "012 -\nLow cause\n");
    Write("ENGLISH/fix.a", "012 -\nLow fix\n");
    Write("ENGLISH/qx_error_help.txt", NcBlock(12, "never"));
    EXPECT_EQ(Classic("P012 Coolant"), Comment("Low"));
    EXPECT_EQ(Classic("P12 Coolant"), Comment("Low"));
    EXPECT_EQ(Classic("P2012 Coolant"), std::nullopt);
}

TEST_F(AutoFilliZEK, KindIsACapitalLetter) {
    Write("ENGLISH/qx_error_help.txt", NcBlock(938, "Key"));
    Write("ENGLISH/error.a", "938 Low\n");
    for (const char* data : {"", "n938 x", "p938 x", "Y938 x", " N938 x", "938 x", "XN938 x"})
        EXPECT_EQ(Classic(data), std::nullopt) << data;
}

TEST_F(AutoFilliZEK, NumberEndsAtTheFirstBlank) {
    Write("ENGLISH/qx_error_help.txt", NcBlock(938, "Key"));
    EXPECT_EQ(Classic("N0938 x"), Comment("Key"));
    EXPECT_EQ(Classic("N938 1 2"), Comment("Key"));
    for (const char* data : {"N", "P", "N938", "N938|x", "N-938 x", "N 938", "N99999999999999999999 x"})
        EXPECT_EQ(Classic(data), std::nullopt) << data;
}

TEST_F(AutoFilliZEK, BlankBehindTheKindIsNumberZero) {
    EXPECT_EQ(Classic("N "), std::nullopt);
    Write("ENGLISH/qx_error_help.txt", NcBlock(0, "Zero"));
    Write("ENGLISH/error.a", "000 None\n");
    EXPECT_EQ(Classic("N "), Comment("Zero"));
    EXPECT_EQ(Classic("N 938"), Comment("Zero"));
    EXPECT_EQ(Classic("Notaus an Tür"), Comment("Zero"));
    EXPECT_EQ(Classic("P "), "None\r\nReason:\r\n\r\n");
}

TEST_F(AutoFilliZEK, NamesAreFoundWhateverTheirCase) {
    Write("english/QX_Error_Help.TXT", NcBlock(938, "Key"));
    Write("German/ERROR.A", "012 Unten\n");
    EXPECT_EQ(Classic("N938 x"), Comment("Key"));
    EXPECT_EQ(Classic("P12 x", German), "Unten\r\nUrsache:\r\n\r\n");
}

TEST_F(AutoFill, CodedOrClassicTextsAreFound) {
    Write("OPERATION_EN.XMT", XmlEntry(5, "Key"));
    Write("ENGLISH/qx_error_help.txt", NcBlock(938, "Classic"));
    EXPECT_EQ(AutoFillComment("Event: 232-5", English, Path()).Text, Comment("Key"));
    EXPECT_EQ(AutoFillComment("N938 x", English, Path()).Text, Comment("Classic"));
    EXPECT_EQ(AutoFillComment("x", English, Path()), ProposedComment());
}

TEST_F(AutoFill, ClassicTextWinsOverTheCodedOne) {
    Write("OPERATION_EN.XMT", XmlEntry(5, "Key"));
    Write("ENGLISH/qx_error_help.txt", NcBlock(938, "Classic"));
    EXPECT_EQ(AutoFillComment("N938 Event: 232-5", English, Path()).Text, Comment("Classic"));
    EXPECT_EQ(AutoFillComment("N939 Event: 232-5", English, Path()).Text, Comment("Key"));
}

TEST_F(AutoFill, MistakeStaysWithAClassicText) {
    Write("facilities.csv", "wrong\n");
    Write("ENGLISH/qx_error_help.txt", NcBlock(938, "Classic"));
    const ProposedComment proposed = AutoFillComment("N938 Event: 232-5", English, Path());
    EXPECT_EQ(proposed.Text, Comment("Classic"));
    EXPECT_EQ(FacilityFileMessage(proposed.Mistake, English),
              Path() + "facilities.csv: invalid facility in line 1");
}

TEST_F(AutoFill, MissingFilesAndFoldersAreSilent) {
    for (const std::string& folder : {Path(), Folder / "missing", Folder.Write("file", "x"), std::string()})
        for (const char* data : {"Event: 232-5", "Event: 300-5", "N938 x", "P12 x"})
            EXPECT_EQ(AutoFillComment(data, English, folder), ProposedComment()) << folder << " " << data;
}

TEST_F(AutoFill, FoldersInPlaceOfFilesAreSilent) {
    for (const char* name : {"OPERATION_EN.XMT", "facilities.csv", "ENGLISH/ErrorText.csv",
                             "ENGLISH/qx_error_help.txt", "ENGLISH/error.a"})
        std::filesystem::create_directories(Folder.Path() / name);
    for (const char* data : {"Event: 232-5", "Event: 300-5", "N938 x", "P12 x"})
        EXPECT_EQ(AutoFillComment(data, English, Path()), ProposedComment()) << data;
}

TEST_F(AutoFill, NulInTheDataIsNoDigit) {
    using namespace std::string_view_literals;
    Write("ENGLISH/qx_error_help.txt", NcBlock(938, "Classic"));
    EXPECT_EQ(AutoFillComment("N938\0 x"sv, English, Path()).Text, Comment("Classic"));
    EXPECT_EQ(AutoFillComment("\0N938 x"sv, English, Path()), ProposedComment());
    EXPECT_EQ(AutoFillComment("Event: \0"sv, English, Path()), ProposedComment());
}

TEST_F(AutoFill, FirstFolderWithATextCountsLanguageByLanguage) {
    Write("own/OPERATION_EN.XMT", XmlEntry(5, "own"));
    Write("beside/OPERATION_EN.XMT", XmlEntry(5, "beside") + XmlEntry(6, "six"));
    Write("beside/OPERATION_DE.XMT", XmlEntry(5, "neben"));
    Write("own/ENGLISH/qx_error_help.txt", NcBlock(1, "one"));
    Write("beside/ENGLISH/qx_error_help.txt", NcBlock(1, "other") + NcBlock(2, "two"));
    const std::vector<std::string> folders{Path() + "own", Path() + "missing", Path() + "beside"};
    const auto text = [&](std::string_view data, Language language = English) {
        return AutoFillComment(data, language, folders).Text.value_or("");
    };
    EXPECT_EQ(text("Event: 232-0005"), Comment("own"));
    EXPECT_EQ(text("Event: 232-0006"), Comment("six"));
    EXPECT_EQ(text("Event: 232-0005", German).substr(0, 7), "neben\r\n");
    EXPECT_EQ(text("N1 x"), Comment("one"));
    EXPECT_EQ(text("N2 x"), Comment("two"));
    EXPECT_EQ(text("N3 x"), "");
}

TEST_F(AutoFill, FirstTableOfFacilitiesCountsForAllFolders) {
    Write("beside/facilities.csv", "1;??;A\n0x999;BESIDE;B\n");
    Write("beside/BESIDE_EN.XMT", XmlEntry(5, "beside"));
    Write("own/BESIDE_EN.XMT", XmlEntry(5, "own"));
    Write("own/OWN_EN.XMT", XmlEntry(5, "mine"));
    const std::vector<std::string> folders{Path() + "own", Path() + "beside"};
    EXPECT_EQ(AutoFillComment("Event: 999-5", English, folders).Text, Comment("own"));
    Write("own/facilities.csv", "1;??;A\n0x999;OWN;B\n");
    EXPECT_EQ(AutoFillComment("Event: 999-5", English, folders).Text, Comment("mine"));
    // A mistake is told, and the built-in table counts then, as for one folder.
    Write("own/facilities.csv", "wrong\n");
    const ProposedComment proposed = AutoFillComment("Event: 999-5", English, folders);
    EXPECT_EQ(proposed.Text, std::nullopt);
    EXPECT_EQ(proposed.Mistake.Path, PathText(ToPath(Path() + "own") / "facilities.csv"));
    EXPECT_EQ(proposed.Mistake.Line, 1U);
}
