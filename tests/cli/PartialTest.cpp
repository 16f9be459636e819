// SPDX-License-Identifier: MIT
// What --partial prints of logbooks that an error ends early.
#include "cli/RunProgram.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using testing::HasSubstr;

std::size_t LineCount(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// A separated line whose key text ends too early raises the error.
const std::string Separator = "_________Mon Jan 04 2010____________";
std::string StibLine() { return "Stib:    ON" + std::string(33, ' ') + "12:00:09"; }

} // namespace

TEST(Partial, PrintsWhatWasReadBeforeAnError) {
    const TemporaryFolder folder;
    const std::string log =
        folder.Write("a.log", Lines({Separator, StibLine(), StibLine(), StibLine(), "Key:a:", StibLine()}));
    const ProgramResult whole = RunCommandLineTool({"export", log});
    ASSERT_EQ(whole.ExitStatus, 1);
    EXPECT_EQ(whole.Output, "");
    const ProgramResult partial = RunCommandLineTool({"export", log, "--partial"});
    EXPECT_EQ(partial.ExitStatus, 3);
    EXPECT_EQ(LineCount(partial.Output), 2U);
    EXPECT_EQ(partial.Errors, "qorvix-cli: an error ended the read; entries read until then: 2\n");
    EXPECT_THAT(RunCommandLineTool({"export", log, "--partial", "--language", "de"}).Errors,
                HasSubstr("ein Fehler beendete das Lesen; bis dahin gelesene Einträge: 2"));
    for (const char* const command : {"sessions", "errors"}) {
        EXPECT_EQ(RunCommandLineTool({command, log}).ExitStatus, 1);
        EXPECT_EQ(RunCommandLineTool({command, log, "--partial"}).ExitStatus, 3);
    }
    EXPECT_THAT(RunCommandLineTool({"sessions", log, "--partial", "--format", "jsonl"}).Output,
                HasSubstr("\"entries\":2"));
}

TEST(Partial, SaysWhereNothingCouldBeRead) {
    const TemporaryFolder folder;
    for (const std::string& text :
         {std::string("abc\r\ndef\r\n"), std::string("Operation Logbook Version 1.0"), std::string(),
          Lines({Separator})}) {
        const std::string log = folder.Write("a.log", text);
        for (const std::vector<std::string>& command : {std::vector<std::string>{"export", log},
                                                        {"sessions", log},
                                                        {"errors", log},
                                                        {"lookup", "--all", log}}) {
            for (const bool partial : {true, false}) {
                std::vector<std::string> arguments = command;
                if (partial)
                    arguments.emplace_back("--partial");
                EXPECT_EQ(RunCommandLineTool(arguments).ExitStatus, 1) << command[0] << ' ' << text;
            }
        }
        if (text.empty())
            continue;
        EXPECT_EQ(RunCommandLineTool({"sessions", log, "--partial"}).Errors,
                  "qorvix-cli: " + log + ": no event could be read; is this a logbook?\n");
        EXPECT_EQ(RunCommandLineTool({"export", log, "--partial", "--language", "de"}).Errors,
                  "qorvix-cli: " + log + ": kein Ereignis konnte gelesen werden; ist das ein Logbuch?\n");
    }
}

TEST(Partial, ChangesNothingForAWholeLogbook) {
    const std::string log = QORVIX_SOURCE_FOLDER "/samples/classic.log";
    const ProgramResult partial = RunCommandLineTool({"export", log, "--partial"});
    EXPECT_EQ(partial.ExitStatus, 0);
    EXPECT_EQ(partial.Errors, "");
    EXPECT_EQ(partial.Output, RunCommandLineTool({"export", log}).Output);
}

TEST(Partial, ARegisterBlockWithoutItsEndEndsTheRead) {
    const TemporaryFolder folder;
    const std::string log =
        folder.Write("a.log", Lines({Header("STIB:    On"), Header("BREG:"), "  D0=1", "  D1=2"}));
    for (const char* const command : {"export", "sessions", "errors"}) {
        const ProgramResult result = RunCommandLineTool({command, log, "--partial"});
        EXPECT_EQ(result.ExitStatus, 3) << command;
        EXPECT_THAT(result.Errors, HasSubstr("entries read until then: 1"));
    }
}

TEST(Partial, ListsTheCodesThatWereRead) {
    const TemporaryFolder folder;
    const std::string log =
        folder.Write("a.log", Lines({Header("BERR:    N938 x"), Header("BREG:"), "  D0=1"}));
    const ProgramResult result =
        RunCommandLineTool({"lookup", "--all", log, "--partial", "--format", "jsonl"});
    EXPECT_EQ(result.ExitStatus, 3);
    EXPECT_THAT(result.Output, HasSubstr("{\"key\":\"N938\",\"entries\":1,"));
    EXPECT_EQ(RunCommandLineTool({"lookup", "N938 x", "--partial"}).ExitStatus, 2);
}

// A logbook that is cut anywhere gives what was read, whether or not the cut is an error.
TEST(Partial, OfALogbookCutAnywhereIsNeverNothing) {
    const TemporaryFolder folder;
    for (const std::string sample : {"classic", "separated", "operation"}) {
        const std::string text = FileContent(QORVIX_SOURCE_FOLDER "/samples/" + sample + ".log");
        for (std::size_t size = 700; size < text.size(); size += text.size() / 23) {
            const std::string log = folder.Write("cut.log", text.substr(0, size));
            const ProgramResult result = RunCommandLineTool({"export", log, "--partial"});
            EXPECT_TRUE(result.ExitStatus == 0 || result.ExitStatus == 3) << sample << ' ' << size;
            EXPECT_GT(LineCount(result.Output), 0U) << sample << ' ' << size;
        }
    }
}
