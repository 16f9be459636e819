// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace {

using testing::HasSubstr;

std::string FaultLine(const std::string& clock, const std::string& text) {
    return Header("BERR:    " + text, "04.01.2010 " + clock);
}

class ErrorsCommand : public testing::Test {
  protected:
    ErrorsCommand() {
        Log = Folder.Write(
            "a.log",
            Lines({FaultLine("08:00:00", "N938 no function"), FaultLine("08:00:10", "N938 no function"),
                   FaultLine("08:00:20", "N938 no function"),
                   Header("INFO:    HMI ERRCLEARED", "04.01.2010 08:00:25"), "  N938",
                   FaultLine("09:00:00", "door 7 open"), Header("WARNING: PLC LUBE", "04.01.2010 09:00:01"),
                   "  Event: 232-5"}));
    }

    ProgramResult Errors(std::vector<std::string> arguments = {}) const {
        arguments.insert(arguments.begin(), {"errors", Log});
        return RunCommandLineTool(arguments);
    }

    TemporaryFolder Folder;
    std::string Log;
};

const std::string First =
    R"({"key":"N938","code":true,"example":"N938 no function","type":4,"entries":3,"episodes":1,"sessions":1,)"
    R"("first":"2010-01-04T08:00:00","last":"2010-01-04T08:00:20","first_index":0,"last_index":2,)"
    R"("per_recorded_hour":2.999,"message_en":"Key without function","message_de":"Taste ohne Funktion",)"
    R"("chattering":3,"cleared":1})";
const std::string Second =
    R"({"key":"/ door # open","code":false,"example":"door 7 open","type":4,"entries":1,"episodes":1,"sessions":1,)"
    R"("first":"2010-01-04T09:00:00","last":"2010-01-04T09:00:00","first_index":4,"last_index":4,)"
    R"("per_recorded_hour":1.0,"message_en":null,"message_de":null,"chattering":0,"cleared":null})";

} // namespace

TEST_F(ErrorsCommand, PrintsALineForEachError) {
    const ProgramResult result = Errors({"--format", "jsonl"});
    EXPECT_EQ(result.ExitStatus, 0);
    EXPECT_EQ(result.Errors, "");
    EXPECT_EQ(result.Output, First + '\n' + Second + '\n');
    EXPECT_EQ(Errors({"--format", "jsonl", "--top", "1"}).Output, First + '\n');
}

TEST_F(ErrorsCommand, ChoosesTypes) {
    EXPECT_THAT(Errors({"--format", "jsonl", "--type", "warning"}).Output,
                HasSubstr("{\"key\":\"232-0005\""));
    std::istringstream all(Errors({"--format", "csv", "--type", "all"}).Output);
    std::string line;
    std::getline(all, line);
    EXPECT_EQ(line, "key,code,example,type,entries,episodes,sessions,first,last,first_index,last_index,"
                    "per_recorded_hour,message_en,message_de,chattering,cleared\r");
    std::getline(all, line);
    EXPECT_THAT(line, HasSubstr("N938,true,"));
    std::getline(all, line);
    EXPECT_THAT(line, HasSubstr("/ door # open,false,"));
    std::getline(all, line);
    EXPECT_THAT(line, HasSubstr("232-0005,true,"));
}

TEST_F(ErrorsCommand, CountsWhatFiltersLetThrough) {
    EXPECT_EQ(RunCommandLineTool({"errors", Log, "--filters", Folder / "no.fil"}).ExitStatus, 1);
    const std::string filters = Folder.Write("f.fil", "[Filters]\r\nI|0|door|||1\r\n");
    const ProgramResult result = Errors({"--format", "jsonl", "--filters", filters});
    EXPECT_EQ(result.Errors, "");
    EXPECT_EQ(result.Output, Second + '\n');
}

TEST_F(ErrorsCommand, PrintsATableOfAtMost100Columns) {
    const ProgramResult result = Errors();
    EXPECT_EQ(
        result.Output,
        "Entries            Episodes      Cleared  In 60 s  Last              Error\n"
        "      3  ########         1            1        3  2010-01-04 08:00  N938 Key without function\n"
        "      1  ##               1  end unknown           2010-01-04 09:00  / door # open\n"
        "1 of 2 keys have no text in English, 1 none in German\n");
    const ProgramResult german = Errors({"--language", "de"});
    EXPECT_THAT(german.Output, HasSubstr("Ende unbekannt"));
    EXPECT_THAT(german.Output, HasSubstr("N938 Taste ohne Funktion"));
    EXPECT_THAT(german.Output,
                HasSubstr("1 von 2 Schlüsseln haben keinen Text auf Englisch, 1 keinen auf Deutsch"));
    for (const std::string sample : {"classic", "separated", "operation"})
        for (const char* const language : {"en", "de"}) {
            std::istringstream lines(
                RunCommandLineTool({"errors", QORVIX_SOURCE_FOLDER "/samples/" + sample + ".log", "--type",
                                    "all", "--language", language})
                    .Output);
            std::size_t count = 0;
            for (std::string line; std::getline(lines, line); ++count) {
                const auto characters = std::count_if(line.begin(), line.end(), [](char c) {
                    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
                });
                EXPECT_LE(characters, 100) << line;
            }
            EXPECT_GT(count, 5U);
        }
}

TEST_F(ErrorsCommand, LeavesTheRateOfAShortLogbookEmpty) {
    Log = Folder.Write("b.log", Lines({FaultLine("08:00:00", "N1 x"), FaultLine("08:14:59", "N1 x")}));
    EXPECT_THAT(Errors({"--format", "jsonl"}).Output, HasSubstr("\"per_recorded_hour\":null"));
    Log = Folder.Write("b.log", Lines({FaultLine("08:00:00", "N1 x"), FaultLine("08:15:00", "N1 x")}));
    EXPECT_THAT(Errors({"--format", "jsonl"}).Output, HasSubstr("\"per_recorded_hour\":8.0"));
}

TEST_F(ErrorsCommand, LookupListsEveryCodeAndWhatIsMissing) {
    Log = Folder.Write("c.log", Lines({FaultLine("08:00:00", "P7777 x"), FaultLine("08:00:01", "N938 x"),
                                       FaultLine("08:00:02", "no code")}));
    const ProgramResult text = RunCommandLineTool({"lookup", "--all", Log});
    EXPECT_EQ(text.ExitStatus, 0);
    EXPECT_EQ(text.Output, "Code       Entries  Lacks  English               German\n"
                           "N938             1         Key without function  Taste ohne Funktion\n"
                           "P7777            1  en de  -                     -\n");
    const ProgramResult json = RunCommandLineTool({"lookup", "--all", Log, "--format", "jsonl"});
    EXPECT_THAT(json.Output,
                HasSubstr("{\"key\":\"N938\",\"entries\":1,\"text_en\":\"Key without function\\nReason:\\n"));
    EXPECT_THAT(
        json.Output,
        HasSubstr(
            "{\"key\":\"P7777\",\"entries\":1,\"text_en\":null,\"text_de\":null,\"missing\":\"en de\"}\n"));
    EXPECT_EQ(RunCommandLineTool({"lookup", "N938 x", "--all", Log}).ExitStatus, 2);
    EXPECT_EQ(RunCommandLineTool({"lookup"}).ExitStatus, 2);
    EXPECT_EQ(RunCommandLineTool({"lookup", "N938 x", "--format", "csv"}).ExitStatus, 2);
}
