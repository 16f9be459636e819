// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace {

class LookupCommand : public testing::Test {
  protected:
    ProgramResult LookUp(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"lookup", "--language-folder", Folder.Path().string()});
        return RunCommandLineTool(arguments);
    }

    TemporaryFolder Folder;
};

} // namespace

TEST_F(LookupCommand, FolderBesideTheProgramIsTheDefault) {
    const ProgramResult english = RunCommandLineTool({"lookup", "Event: 232-0005"});
    EXPECT_EQ(english.ExitStatus, 0);
    EXPECT_EQ(english.Errors, "");
    EXPECT_EQ(english.Output, "Key without function\n"
                              "Reason:\n"
                              "The key has no function in this operating mode.\n"
                              "Fix:\n"
                              "Choose another operating mode.\n"
                              "Reaction:\n"
                              "Ev_class 2\n"
                              "Warnung\n"
                              "Anzeige\n");
    const ProgramResult german =
        RunCommandLineTool({"lookup", "P012 Kühlmittelstand niedrig", "--language", "de"});
    EXPECT_EQ(german.ExitStatus, 0);
    EXPECT_EQ(german.Output, "Kühlmittelstand niedrig\n"
                             "Ursache:\n"
                             "Das Kühlmittel ist verbraucht oder mit den Spänen ausgetragen.\n"
                             "Behebung:\n"
                             "Kühlmittel auffüllen.\n"
                             "Späneförderer prüfen.\n");
}

TEST_F(LookupCommand, FolderMayBeGiven) {
    std::filesystem::create_directory(Folder / "ENGLISH");
    Folder.Write("ENGLISH/qx_error_help.txt", "938\nM\n\nCorrective action:\nF\n");
    EXPECT_EQ(LookUp({"N938 x"}).Output, "M\nReason:\n\nFix:\nF\n");
    EXPECT_EQ(LookUp({"N938 x", "--language", "en"}).Output, "M\nReason:\n\nFix:\nF\n");
    EXPECT_EQ(LookUp({"N938 x", "--language", "de"}).ExitStatus, 1);
}

TEST_F(LookupCommand, UsersOwnFolderComesFirstLanguageByLanguage) {
    const std::string own = "config-data/VELTRANDOR/Qorvix/language/";
    std::filesystem::create_directories(Folder / own);
    Folder.Write(own + "operation_en.xmt", "<string id=\"a\" value=\"5\">\n<text>Own</text>\n</string>\n");
    const auto lookUp = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "lookup");
        return RunCommandLineTool(arguments, Folder / "config");
    };
    EXPECT_EQ(lookUp({"Event: 232-0005"}).Output, "Own\nReason:\n\nFix:\n\n");
    EXPECT_THAT(lookUp({"Event: 232-0005", "--language", "de"}).Output, testing::StartsWith("Taste"));
    EXPECT_THAT(lookUp({"--all", QORVIX_SOURCE_FOLDER "/samples/events.log"}).Output, HasSubstr(" Own "));
    EXPECT_THAT(RunCommandLineTool({"errors", QORVIX_SOURCE_FOLDER "/samples/events.log", "--type", "all"},
                                   Folder / "config")
                    .Output,
                HasSubstr(" Own"));
    // A folder that is named takes the place of both.
    EXPECT_EQ(lookUp({"Event: 232-0005", "--language-folder", Folder / "none"}).ExitStatus, 1);
    // A mistake in the user's own table is told.
    const std::string file = Folder.Write(own + "facilities.csv", "wrong\n");
    EXPECT_EQ(lookUp({"Event: 232-0005"}).Errors, "qorvix-cli: " + file + ": invalid facility in line 1\n");
}

TEST_F(LookupCommand, LinesOfTheDataAreThoseOfTheDialog) {
    std::filesystem::create_directory(Folder / "ENGLISH");
    Folder.Write("ENGLISH/qx_error_help.txt", "104\nM\n\nCorrective action:\nF\n");
    EXPECT_EQ(LookUp({"N104 axis | X"}).ExitStatus, 0);
    // The number has no blank behind it in its line.
    EXPECT_EQ(LookUp({"N104 | axis"}).ExitStatus, 1);
}

TEST_F(LookupCommand, NothingIsPrintedWithoutAText) {
    for (const char* data : {"N938 x", "P1 x", "Event: 232-5", "anything", ""}) {
        const ProgramResult result = LookUp({data});
        EXPECT_EQ(result.ExitStatus, 1) << data;
        EXPECT_EQ(result.Output, "") << data;
        EXPECT_EQ(result.Errors, "") << data;
    }
    EXPECT_EQ(RunCommandLineTool({"lookup", "N938 x", "--language-folder", Folder / "missing"}).ExitStatus,
              1);
}

TEST_F(LookupCommand, WrongFacilityFileIsTold) {
    const std::string file = Folder.Write("facilities.csv", "wrong\n");
    Folder.Write("OPERATION_EN.XMT", "<string id=\"a\" value=\"5\">\n<text>M</text>\n</string>\n");
    const ProgramResult result = LookUp({"Event: 232-5"});
    EXPECT_EQ(result.ExitStatus, 0);
    EXPECT_EQ(result.Output, "M\nReason:\n\nFix:\n\n");
    EXPECT_EQ(result.Errors, "qorvix-cli: " + file + ": invalid facility in line 1\n");
}

TEST_F(LookupCommand, WrongUsageIsStatusTwo) {
    const std::vector<std::string> wrong[] = {{"lookup"},
                                              {"lookup", "N938 x", "more"},
                                              {"lookup", "N938 x", "--language", "fr"},
                                              {"lookup", "N938 x", "--language-folder", ""},
                                              {"lookup", "N938 x", "export", "a.log"}};
    for (const std::vector<std::string>& arguments : wrong) {
        const ProgramResult result = RunCommandLineTool(arguments);
        EXPECT_EQ(result.ExitStatus, 2);
        EXPECT_EQ(result.Output, "");
        EXPECT_NE(result.Errors, "");
    }
    EXPECT_THAT(RunCommandLineTool({"lookup", "--help"}).Output, HasSubstr("--language-folder"));
}
