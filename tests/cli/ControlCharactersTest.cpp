// SPDX-License-Identifier: MIT
// What a hostile logbook can do to a terminal: nothing.
#include "cli/RunProgram.h"
#include "support/Abilities.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;
using testing::Not;

namespace {

class ControlCharacters : public testing::Test {
  protected:
    TemporaryFolder Folder;
    // ESC, DEL, and a C1 character: undefined in Windows-1252, so that it has its own number.
    std::string File =
        Folder.Write("a.log", Lines({Header("BERR:    a\x1b[31m\x7f\x8d\tb\x07"), Header("RESET:")}));
};

constexpr std::string_view Shown = "a\\u001b[31m\\u007f\\u008d\tb\\u0007";

} // namespace

TEST_F(ControlCharacters, AreShownOnATerminal) {
    NEEDS_TERMINAL();
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"export", File, "--format", "csv"},
          std::vector<std::string>{"find", File, "b", "--format", "csv"},
          std::vector<std::string>{"export", File, "--format", "csv", "--output", "/dev/stdout"}}) {
        const ProgramResult result = RunOnTerminal(arguments);
        EXPECT_EQ(result.ExitStatus, 0);
        EXPECT_THAT(result.Output, HasSubstr("0,4,Fatal,\"" + std::string(Shown) + "\",,,04.01.2010"));
        EXPECT_THAT(result.Output, Not(HasSubstr("\x1b")));
    }
}

TEST_F(ControlCharacters, StayInAFileAndAPipe) {
    NEEDS_TERMINAL();
    const std::string bytes = "0,4,Fatal,\"a\x1b[31m\x7f\u008d\tb\x07\",,,04.01.2010";
    EXPECT_THAT(RunCommandLineTool({"export", File, "--format", "csv"}).Output, HasSubstr(bytes));
    EXPECT_EQ(RunOnTerminal({"export", File, "--format", "csv", "--output", Folder / "a.csv"}).Output, "");
    EXPECT_THAT(FileContent(Folder / "a.csv"), HasSubstr(bytes));
}

TEST_F(ControlCharacters, AreEscapedInJsonEverywhere) {
    NEEDS_TERMINAL();
    const std::string line = R"("data":"a\u001b[31m\u007f\u008d\tb\u0007")";
    EXPECT_THAT(RunCommandLineTool({"export", File}).Output, HasSubstr(line));
    EXPECT_THAT(RunOnTerminal({"export", File}).Output, HasSubstr(line));
}

TEST_F(ControlCharacters, OfLookedUpTextsAreShownOnATerminal) {
    NEEDS_TERMINAL();
    Folder.Write("ErrorText.csv", "");
    std::filesystem::create_directory(Folder / "ENGLISH");
    Folder.Write("ENGLISH/ErrorText.csv", "h\n5;a\x1b[2J;b;c\n");
    const std::vector<std::string> arguments = {"lookup", "Event: 300-5", "--language-folder",
                                                Folder.Path().string()};
    EXPECT_THAT(RunOnTerminal(arguments).Output, HasSubstr("a\\u001b[2J\r\nReason:\r\nb\r\n"));
    EXPECT_THAT(RunCommandLineTool(arguments).Output, HasSubstr("a\x1b[2J\nReason:\nb\n"));
}

TEST_F(ControlCharacters, AreShownInMessages) {
    const std::string name = "b\x1b]0;title\x07\x9b\n.log";
    const std::string shown = "b\\u001b]0;title\\u0007\\u009b\\u000a.log";
    EXPECT_EQ(RunCommandLineTool({"export", Folder / name}).Errors,
              "qorvix-cli: Error opening logbook file: " + (Folder / shown) + "\n");
    EXPECT_THAT(RunCommandLineTool({"export", File, "--filters", Folder / name}).Errors,
                HasSubstr((Folder / shown) + "\""));
    EXPECT_THAT(RunCommandLineTool({"pack", File, Folder / ("none/" + name + ".qorvix")}).Errors,
                HasSubstr("none/" + shown));
    WriteZip(Folder / (name + ".zip"), {{"readme", "x"}});
    EXPECT_THAT(RunCommandLineTool({"export", Folder / (name + ".zip")}).Errors,
                HasSubstr((Folder / shown) + ".zip)\n"));
    EXPECT_EQ(RunCommandLineTool(
                  {"export", Folder.Write("version.log", Lines({"Operation Logbook Version \x1b[7m2.0",
                                                                Header("Stib: ON")}))})
                  .Errors.find('\x1b'),
              std::string::npos);
    for (const std::vector<std::string>& wrong :
         {std::vector<std::string>{"\x1b[31m"}, std::vector<std::string>{"export", File, "\x1b[31m"},
          std::vector<std::string>{"export", File, "--format", "\x1b[31m"}}) {
        const ProgramResult result = RunCommandLineTool(wrong);
        EXPECT_EQ(result.ExitStatus, 2);
        EXPECT_THAT(result.Errors, HasSubstr("\\u001b[31m"));
        EXPECT_THAT(result.Errors, Not(HasSubstr("\x1b")));
    }
}
