// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace {

using testing::HasSubstr;
using Json = nlohmann::ordered_json;

std::string StatusLine(const std::string& stamp) { return Header("STIB:    On", stamp); }
std::string ResetLine(const std::string& stamp) { return Header("RESET:", stamp); }

class SessionsCommand : public testing::Test {
  protected:
    SessionsCommand() {
        Log = Folder.Write(
            "a.log",
            Lines({StatusLine("31.10.2010 02:59:58"), StatusLine("31.10.2010 02:00:01"),
                   ResetLine("01.11.2010 08:00:00"), ResetLine("01.11.2010 08:00:20.500"),
                   ResetLine("01.11.2010 08:01:00"), Header("BERR:    P7 door", "01.11.2010 08:01:30.250"),
                   StatusLine("01.11.2010 08:02:00.500"), ResetLine("01.13.2010 09:00:00")}));
    }

    ProgramResult Sessions(std::vector<std::string> arguments = {}) const {
        arguments.insert(arguments.begin(), {"sessions", Log});
        return RunCommandLineTool(arguments);
    }

    TemporaryFolder Folder;
    std::string Log;
};

} // namespace

TEST_F(SessionsCommand, PrintsALineForEachSession) {
    const ProgramResult result = Sessions({"--format", "jsonl"});
    EXPECT_EQ(result.ExitStatus, 0);
    EXPECT_EQ(result.Errors, "");
    EXPECT_EQ(
        result.Output,
        R"({"session":1,"start":null,"start_recorded":false,"first_index":0,"last_index":1,"entries":2,"last_entry":"2010-10-31T02:00:01","recorded_seconds":0,"to_next_seconds":null,"errors":0,"warnings":0,"clock_steps":1,"last_error":null}
{"session":2,"start":"2010-11-01T08:00:00","start_recorded":true,"first_index":2,"last_index":2,"entries":1,"last_entry":"2010-11-01T08:00:00","recorded_seconds":null,"to_next_seconds":20,"errors":0,"warnings":0,"clock_steps":0,"last_error":null}
{"session":3,"start":"2010-11-01T08:00:20.500","start_recorded":true,"first_index":null,"last_index":null,"entries":0,"last_entry":null,"recorded_seconds":null,"to_next_seconds":40,"errors":0,"warnings":0,"clock_steps":0,"last_error":null}
{"session":4,"start":"2010-11-01T08:01:00","start_recorded":true,"first_index":3,"last_index":4,"entries":2,"last_entry":"2010-11-01T08:02:00.500","recorded_seconds":60,"to_next_seconds":null,"errors":1,"warnings":0,"clock_steps":0,"last_error":{"index":3,"key":"P7","seconds_before_end":30.25}}
{"session":5,"start":null,"start_recorded":true,"first_index":5,"last_index":5,"entries":1,"last_entry":null,"recorded_seconds":null,"to_next_seconds":null,"errors":0,"warnings":0,"clock_steps":0,"last_error":null}
)");
}

TEST_F(SessionsCommand, PrintsATableToRead) {
    const ProgramResult result = Sessions();
    EXPECT_EQ(result.ExitStatus, 0);
    EXPECT_EQ(
        result.Output,
        "Session  Start                    Recorded   To next  Entries  Errors  Warn.  Last error, clock\n"
        "      1  not recorded              0:00:00         -        2       0      0  clock steps back: 1 "
        "(perhaps summer time)\n"
        "      2  2010-11-01 08:00:00             -   0:00:20        1       0      0\n"
        "      3  2010-11-01 08:00:20.500         -   0:00:40        0       0      0\n"
        "      4  2010-11-01 08:01:00       0:01:00         -        2       1      0  P7, 0:00:30 before "
        "the last entry\n"
        "      5  unreadable                      -         -        1       0      0\n"
        "Recorded hours: 0.02; at most: 0.03\n");
    EXPECT_THAT(Sessions({"--language", "de"}).Output, HasSubstr("nicht erfasst"));
}

TEST_F(SessionsCommand, FoldsStartsWithoutEntriesIntoOneLine) {
    Log = Folder.Write("b.log", Lines({ResetLine("01.11.2010 08:00:00"), ResetLine("01.11.2010 08:00:10"),
                                       ResetLine("01.11.2010 08:00:25.500"), ResetLine("01.11.2010 08:00:40"),
                                       StatusLine("01.11.2010 08:01:00")}));
    EXPECT_THAT(Sessions().Output, HasSubstr("\n    2-3  2 starts in 15 s, from 2010-11-01 08:00:10\n"));
    EXPECT_THAT(Sessions({"--language", "de"}).Output,
                HasSubstr("  2 Starts in 15 s, ab 2010-11-01 08:00:10\n"));
}

TEST_F(SessionsCommand, FoldsNoStartThatHasMoreToSay) {
    Log = Folder.Write("b.log", Lines({ResetLine("31.10.2010 02:59:58"), ResetLine("31.10.2010 02:59:59"),
                                       ResetLine("31.10.2010 02:00:07"), ResetLine("31.10.2010 02:00:09"),
                                       ResetLine("31.13.2010 02:00:10"), ResetLine("31.10.2010 02:00:11")}));
    const std::string text = Sessions().Output;
    EXPECT_THAT(text, HasSubstr("\n      3  2010-10-31 02:00:07"));
    EXPECT_THAT(text, HasSubstr("clock steps back: 1 (perhaps summer time)\n"));
    EXPECT_THAT(text, HasSubstr("\n      5  unreadable"));
}

TEST_F(SessionsCommand, PrintsCsv) {
    std::istringstream lines(Sessions({"--format", "csv"}).Output);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, "session,start,start_recorded,first_index,last_index,entries,last_entry,recorded_seconds,"
                    "to_next_seconds,errors,warnings,clock_steps,last_error_index,last_error_key,"
                    "last_error_seconds_before_end\r");
    std::getline(lines, line);
    EXPECT_EQ(line, "1,,false,0,1,2,2010-10-31T02:00:01,0,,0,0,1,,,\r");
}

TEST_F(SessionsCommand, WritesAFileAndNeverItsSource) {
    const std::string output = Folder / "sessions.jsonl";
    EXPECT_EQ(Sessions({"--format", "jsonl", "--output", output}).ExitStatus, 0);
    EXPECT_EQ(FileContent(output), Sessions({"--format", "jsonl"}).Output);
    const std::string before = FileContent(Log);
    const ProgramResult result = Sessions({"--output", Log});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_THAT(result.Errors, HasSubstr("the list would replace the file that it is made from"));
    EXPECT_EQ(FileContent(Log), before);
}

TEST_F(SessionsCommand, SaysWhatIsWrong) {
    const ProgramResult missing = RunCommandLineTool({"sessions", Folder / "no.log"});
    EXPECT_EQ(missing.ExitStatus, 1);
    EXPECT_EQ(missing.Output, "");
    EXPECT_THAT(missing.Errors, HasSubstr("Error opening logbook file"));
    EXPECT_EQ(RunCommandLineTool({"sessions"}).ExitStatus, 2);
    EXPECT_EQ(Sessions({"--format", "xml"}).ExitStatus, 2);
}

TEST_F(SessionsCommand, IsEmptyWithoutEntries) {
    Log = Folder.Write("c.log", "nothing of a logbook\r\nand nothing more\r\n");
    const ProgramResult result = Sessions({"--format", "jsonl"});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_EQ(result.Output, "");
    EXPECT_EQ(result.Errors, "qorvix-cli: " + Log + ": no event could be read; is this a logbook?\n");
}

TEST_F(SessionsCommand, CsvIsForSpreadsheetsOfOtherRegions) {
    const ProgramResult comma = Sessions({"--format", "csv"});
    std::string semicolons = comma.Output;
    std::replace(semicolons.begin(), semicolons.end(), ',', ';');
    EXPECT_EQ(Sessions({"--format", "csv", "--separator", "semicolon", "--bom"}).Output,
              "\xEF\xBB\xBF" + semicolons);
    EXPECT_EQ(Sessions({"--bom"}).ExitStatus, 2);
    for (const char* const command : {"errors", "lookup"})
        EXPECT_EQ(RunCommandLineTool({command, command == std::string("lookup") ? "--all" : "--raw", Log,
                                      "--format", "csv", "--separator", "tab"})
                      .ExitStatus,
                  0)
            << command;
}

TEST_F(SessionsCommand, AListReplacesNoArchiveCommentsOrFilters) {
    for (const std::string name : {"a.qorvix", "A.QORVIX", "a.cmt", "a.fil"}) {
        const std::string file = Folder.Write(name, "mine");
        for (const char* const command : {"sessions", "errors", "export"}) {
            const ProgramResult result = RunCommandLineTool({command, Log, "--output", file});
            EXPECT_EQ(result.ExitStatus, 1);
            EXPECT_EQ(result.Errors,
                      "qorvix-cli: " + file + ": a list does not replace an archive, comments or filters\n");
            EXPECT_THAT(RunCommandLineTool({command, Log, "--output", file, "--language", "de"}).Errors,
                        HasSubstr("eine Liste ersetzt kein Archiv, keine Kommentare und keine Filter"));
        }
        EXPECT_EQ(FileContent(file), "mine");
    }
}
