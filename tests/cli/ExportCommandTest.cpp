// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"
#include "support/Abilities.h"
#include "support/OddFiles.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using testing::HasSubstr;
using testing::StartsWith;

namespace {

constexpr const char* Samples = QORVIX_SOURCE_FOLDER "/samples/";
constexpr const char* Expected = QORVIX_SOURCE_FOLDER "/tests/cli/expected/";

class ExportCommand : public testing::Test {
  protected:
    std::string File(const std::vector<std::string>& lines) { return Folder.Write("a.log", Lines(lines)); }

    TemporaryFolder Folder;
};

} // namespace

TEST_F(ExportCommand, SamplesGiveTheStoredLists) {
    for (const std::string sample : {"classic", "separated", "operation"})
        for (const std::string format : {"jsonl", "csv"}) {
            const ProgramResult result =
                RunCommandLineTool({"export", Samples + sample + ".log", "--format", format});
            EXPECT_EQ(result.ExitStatus, 0);
            EXPECT_EQ(result.Errors, "");
            const std::string expected = FileContent(Expected + sample + "." + format);
            ASSERT_FALSE(expected.empty());
            EXPECT_TRUE(result.Output == expected) << sample << " as " << format;
        }
}

TEST_F(ExportCommand, JsonLinesHaveTheirKeysInOrder) {
    const ProgramResult result = RunCommandLineTool(
        {"export", File({Header("INFO:    GEO AXIS"), "\"K\xFChlung\"", Header("RESET:")})});
    EXPECT_EQ(result.Output,
              R"({"index":0,"type":1,"event":"Info","data":"\"Kühlung\"","sender":"GEO","name":"AXIS",)"
              R"("time":"04.01.2010 12:34:56.789","icon":1,"highlighted":false,"comment":""})"
              "\n"
              R"({"index":1,"type":7,"event":"Restart","data":"","sender":"","name":"",)"
              R"("time":"04.01.2010 12:34:56.789","icon":8,"highlighted":false,"comment":""})"
              "\n");
}

TEST_F(ExportCommand, EveryByteOfALogbookGivesValidJson) {
    std::vector<std::string> lines;
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '\n' && byte != '\r')
            lines.push_back(Header(std::string("BERR:    x") + static_cast<char>(byte) + "x"));
    const ProgramResult result = RunCommandLineTool({"export", File(lines)});
    std::istringstream stream(result.Output);
    std::string line;
    std::size_t count = 0;
    for (; std::getline(stream, line); ++count)
        EXPECT_EQ(nlohmann::json::parse(line)["index"], count);
    EXPECT_EQ(count, lines.size());
}

TEST_F(ExportCommand, CsvQuotesAndGuards) {
    const std::string file =
        File({Header("BERR:    a,\"b\""), Header("BERR:    =1+1"), Header("BERR:    +x"),
              Header("BERR:    -x,y"), Header("BERR:    @x"), Header("BERR:    \tx"), Header("BERR:    x=")});
    const ProgramResult guarded = RunCommandLineTool({"export", file, "--format", "csv"});
    const auto row = [](int index, const std::string& data) {
        return std::to_string(index) + ",4,Fatal," + data + ",,,04.01.2010 12:34:56.789,4,false,\r\n";
    };
    const std::string header = "index,type,event,data,sender,name,time,icon,highlighted,comment\r\n";
    EXPECT_EQ(guarded.Output, header + row(0, "\"a,\"\"b\"\"\"") + row(1, "'=1+1") + row(2, "'+x") +
                                  row(3, "\"'-x,y\"") + row(4, "'@x") + row(5, "\"'\tx\"") + row(6, "x="));
    const ProgramResult raw = RunCommandLineTool({"export", file, "--format", "csv", "--raw"});
    EXPECT_EQ(raw.Output, header + row(0, "\"a,\"\"b\"\"\"") + row(1, "=1+1") + row(2, "+x") +
                              row(3, "\"-x,y\"") + row(4, "@x") + row(5, "\"\tx\"") + row(6, "x="));
}

TEST_F(ExportCommand, NamesOfFilesMayHoldQuotesAndBlanks) {
    for (const std::string name : {"my \"press\" log.log", " lead.log", "\"a.log", "\"b\"", "'c'.log", " "}) {
        const std::string file = Folder.Write(name, Lines({Header("BERR:    " + name)}));
        EXPECT_EQ(RunCommandLineTool({"export", file}).ExitStatus, 0) << name;
        EXPECT_EQ(RunCommandLineTool({"export", file, "--output", Folder / (name + ".jsonl")}).ExitStatus, 0);
        EXPECT_THAT(FileContent(Folder / (name + ".jsonl")), HasSubstr("\"type\":4"));
    }
}

TEST_F(ExportCommand, OutputFileIsReplacedWhole) {
    const std::string output = Folder.Write("list.csv", "old");
    const ProgramResult result = RunCommandLineTool(
        {"export", File({Header("RESET:"), Header("BERR:    a")}), "--format", "csv", "--output", output});
    EXPECT_EQ(result.ExitStatus, 0);
    EXPECT_EQ(result.Output, "");
    EXPECT_EQ(FileContent(output), "index,type,event,data,sender,name,time,icon,highlighted,comment\r\n"
                                   "0,7,Restart,,,,04.01.2010 12:34:56.789,8,false,\r\n"
                                   "1,4,Fatal,a,,,04.01.2010 12:34:56.789,4,false,\r\n");
}

TEST_F(ExportCommand, HtmlIsAWholePageInTheLanguage) {
    const std::string file = File({Header("BERR:    a<b"), Header("RESET:")});
    const ProgramResult page = RunCommandLineTool({"export", file, "--format", "html"});
    EXPECT_EQ(page.ExitStatus, 0);
    EXPECT_THAT(page.Output, testing::StartsWith("<!DOCTYPE html>\n<html lang=\"en\">"));
    EXPECT_THAT(page.Output,
                HasSubstr("<title>" + std::filesystem::path(file).filename().string() + "</title>"));
    EXPECT_THAT(page.Output, HasSubstr("<td>a&lt;b</td>"));
    EXPECT_THAT(page.Output, testing::EndsWith("</html>\n"));
    const std::string output = Folder / "list.html";
    EXPECT_EQ(
        RunCommandLineTool({"find", file, "a<b", "--format", "html", "--language", "de", "--output", output})
            .ExitStatus,
        0);
    EXPECT_THAT(FileContent(output), HasSubstr("<th scope=\"col\">Ereignistyp</th>"));
    EXPECT_THAT(FileContent(output), testing::Not(HasSubstr("<td>Restart")));
    // The machine's history has other forms, and the options of CSV are for CSV alone.
    EXPECT_EQ(RunCommandLineTool({"sessions", file, "--format", "html"}).ExitStatus, 2);
    EXPECT_EQ(RunCommandLineTool({"export", file, "--format", "html", "--bom"}).ExitStatus, 2);
}

TEST_F(ExportCommand, OutputFileStaysWhenTheLogbookCannotBeRead) {
    const std::string output = Folder.Write("list.csv", "old");
    EXPECT_EQ(RunCommandLineTool({"export", Folder / "missing.log", "--output", output}).ExitStatus, 1);
    EXPECT_EQ(FileContent(output), "old");
}

TEST_F(ExportCommand, OutputNeverReplacesWhatTheListIsMadeFrom) {
    const std::string log = File({Header("RESET:"), Header("BERR:    a")});
    const std::string filters = Folder.Write("a.fil", "[Filters]\r\nI|0||||1\r\n");
    const std::string before = FileContent(log);
    std::filesystem::create_hard_link(log, Folder / "link");
    for (const std::string& output : {log, Folder / "link", filters}) {
        const auto run = RunCommandLineTool({"export", log, "--filters", filters, "--output", output});
        EXPECT_EQ(run.ExitStatus, 1);
        EXPECT_EQ(run.Output, "");
        EXPECT_NE(run.Errors.find(output + ": the list would replace the file that it is made from"),
                  std::string::npos)
            << run.Errors;
    }
    EXPECT_EQ(FileContent(log), before);
    EXPECT_EQ(FileContent(filters), "[Filters]\r\nI|0||||1\r\n");
    EXPECT_EQ(RunCommandLineTool({"find", log, "a", "--output", log}).ExitStatus, 1);
    EXPECT_EQ(FileContent(log), before);
}

TEST_F(ExportCommand, OutputThatCannotBeWrittenIsTold) {
    const std::string output = Folder / "no/such/list.csv";
    const ProgramResult result =
        RunCommandLineTool({"export", File({Header("RESET:"), Header("RESET:")}), "--output", output});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_THAT(result.Errors, HasSubstr(output + ": No such file or directory"));
}

TEST_F(ExportCommand, OutputMayBeADevice) {
    const ProgramResult result = RunCommandLineTool(
        {"export", File({Header("RESET:"), Header("RESET:")}), "--output", "/dev/stdout", "--format", "csv"});
    EXPECT_EQ(result.ExitStatus, 0);
    const ProgramResult full = RunCommandLineTool(
        {"export", File({Header("RESET:"), Header("RESET:")}), "--output", "/dev/full", "--format", "csv"});
    EXPECT_EQ(full.ExitStatus, 1);
    EXPECT_THAT(full.Errors, HasSubstr("/dev/full could not be written"));
}

TEST_F(ExportCommand, LogbookThatCannotBeReadPrintsNothing) {
    for (const std::string& file : {Folder / "missing.log", Folder.Write("empty.log", "")}) {
        const ProgramResult result = RunCommandLineTool({"export", file});
        EXPECT_EQ(result.ExitStatus, 1);
        EXPECT_EQ(result.Output, "");
        EXPECT_THAT(result.Errors, HasSubstr("Error opening logbook file"));
        EXPECT_THAT(result.Errors, HasSubstr(file));
    }
    const ProgramResult result =
        RunCommandLineTool({"export", File({Header("RESET:"), "Key:", Header("RESET:"), Header("RESET:")})});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_EQ(result.Output, "");
    EXPECT_THAT(result.Errors, HasSubstr("Error reading logbook file"));
}

TEST_F(ExportCommand, FileWithoutEventsIsAnErrorOfTheList) {
    for (const char* format : {"jsonl", "csv"}) {
        const ProgramResult result = RunCommandLineTool({"export", File({"no logbook"}), "--format", format});
        EXPECT_EQ(result.ExitStatus, 1);
        EXPECT_EQ(result.Output, "");
        EXPECT_EQ(result.Errors, "qorvix-cli: Error applying filters\n");
    }
}

TEST_F(ExportCommand, VersionMessageGoesToStandardError) {
    const ProgramResult result =
        RunCommandLineTool({"export", File({"Operation Logbook Version 2.0", Header("Stib: ON")})});
    EXPECT_EQ(result.ExitStatus, 0);
    EXPECT_EQ(result.Errors,
              "qorvix-cli: Logbuch Version 2.0 wird von dieser Kelvaro Version nicht unterstützt.\n"
              "Informieren Sie sich bei VELTRANDOR über die neueste Kelvaro Version.\n");
    EXPECT_THAT(result.Output, StartsWith(R"({"index":0,"type":5)"));
}

TEST_F(ExportCommand, FilterFileDecidesWhatIsPrinted) {
    const std::string file = File({Header("BERR:    a"), Header("RESET:"), Header("BERR:    K\xFChlung")});
    const std::string filters = Folder.Write("a.fil", "[Filters]\r\nI|4||||1\r\nH|0|K\xFChl|||1\r\n");
    const ProgramResult result =
        RunCommandLineTool({"export", file, "--filters", filters, "--format", "csv"});
    EXPECT_EQ(result.ExitStatus, 0);
    EXPECT_EQ(result.Output, "index,type,event,data,sender,name,time,icon,highlighted,comment\r\n"
                             "0,4,Fatal,a,,,04.01.2010 12:34:56.789,4,false,\r\n"
                             "2,4,Fatal,Kühlung,,,04.01.2010 12:34:56.789,18,true,\r\n");
    const std::string none = Folder.Write("none.fil", "");
    EXPECT_EQ(RunCommandLineTool({"export", file, "--filters", none}).Output, "");
}

TEST_F(ExportCommand, StoredFiltersAreThoseOfTheSettings) {
    NEEDS_SETTINGS_FILE();
    const std::string file = File({Header("BERR:    a"), Header("RESET:")});
    std::filesystem::create_directories(Folder / "config/VELTRANDOR");
    Folder.Write("config/VELTRANDOR/Qorvix.json",
                 R"({"Logbook": {"Filters": {"FilterCount": 1, "Filter1": "I|7||||1"}}})");
    const ProgramResult stored = RunCommandLineTool({"export", file, "--stored-filters"}, Folder / "config");
    EXPECT_EQ(stored.ExitStatus, 0);
    EXPECT_THAT(stored.Output, StartsWith(R"({"index":1,"type":7)"));
    EXPECT_THAT(RunCommandLineTool({"export", file}, Folder / "config").Output,
                StartsWith(R"({"index":0,"type":4)"));
    EXPECT_THAT(RunCommandLineTool({"export", file, "--stored-filters"}).Output,
                StartsWith(R"({"index":0,"type":4)"));
}

TEST_F(ExportCommand, BadFilterFilePrintsNothing) {
    const std::string file = File({Header("BERR:    a"), Header("RESET:")});
    const auto errors = [&](const std::string& filters, const std::string& language) {
        const ProgramResult result = RunCommandLineTool(
            {"export", file, "--filters", filters, "--language", language, "--format", "csv"});
        EXPECT_EQ(result.ExitStatus, 1);
        EXPECT_EQ(result.Output, "");
        return result.Errors;
    };
    const std::string missing = Folder / "missing.fil";
    EXPECT_EQ(errors(missing, "en"),
              "qorvix-cli: Cannot read filter file  \"" + missing + "\" (No such file or directory)\n");
    EXPECT_EQ(errors(missing, "de"), "qorvix-cli: Filterdatei \"" + missing +
                                         "\" kann nicht gelesen werden (Datei oder Ordner nicht gefunden)\n");
    const std::string headless = Folder.Write("headless.fil", "I|0||||1\r\n");
    EXPECT_EQ(errors(headless, "en"), "qorvix-cli: " + headless + ": File includes no filter informaion!\n");
    EXPECT_EQ(errors(headless, "de"),
              "qorvix-cli: " + headless + ": Datei enthält keine Filterinformationen!\n");
    const std::string invalid = Folder.Write("invalid.fil", "[Filters]\r\nI|0||||1\r\nnonsense\r\n");
    EXPECT_EQ(errors(invalid, "en"), "qorvix-cli: " + invalid + ": invalid filter in line 3\n");
    EXPECT_EQ(errors(invalid, "de"), "qorvix-cli: " + invalid + ": ungültiger Filter in Zeile 3\n");
}

TEST_F(ExportCommand, FilterFileThatIsNoFileIsNotWaitedFor) {
    const std::string file = File({Header("BERR:    a")});
    for (const std::string& filters : NoFiles(Folder)) {
        const ProgramResult result = RunCommandLineTool({"export", file, "--filters", filters});
        EXPECT_EQ(result.ExitStatus, 1);
        EXPECT_EQ(result.Output, "");
        EXPECT_EQ(result.Errors,
                  "qorvix-cli: Cannot read filter file  \"" + filters + "\" (not a regular file)\n");
    }
}

TEST_F(ExportCommand, FolderIsNotWrittenTo) {
    const std::string folder = Folder / "list";
    std::filesystem::create_directory(folder);
    const ProgramResult result =
        RunCommandLineTool({"export", File({Header("BERR:    a")}), "--output", folder});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_EQ(result.Errors, "qorvix-cli: " + folder + ": Is a directory\n");
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(ExportCommand, SettingsThatAreNoFileCountAsNone) {
    NEEDS_NAMED_PIPES();
    std::filesystem::create_directories(Folder / "config/VELTRANDOR");
    MakePipe(Folder, "config/VELTRANDOR/Qorvix.json");
    const ProgramResult result =
        RunCommandLineTool({"export", File({Header("BERR:    a")}), "--stored-filters"}, Folder / "config");
    EXPECT_EQ(result.ExitStatus, 0);
    EXPECT_EQ(result.Errors, "");
    EXPECT_THAT(result.Output, HasSubstr("\"data\":\"a\""));
}

TEST_F(ExportCommand, MessagesFollowTheLanguage) {
    const ProgramResult result = RunCommandLineTool({"export", Folder / "missing.log", "--language", "de"});
    EXPECT_THAT(result.Errors, HasSubstr("Fehler beim Zugriff auf das Logbuch"));
}

TEST_F(ExportCommand, ArchivesAreOpenedLikeLogbooks) {
    const std::string log = Lines({Header("BERR:    a"), Header("RESET:")});
    WriteZip(Folder / "service.zip", {{"logbook/lb_act.log", log}});
    WriteZip(Folder / "own.qorvix", {{"x.log", log}, {"x.fil", "[Filters]\r\nI|7||||1\r\n"}});
    const std::string all = RunCommandLineTool({"export", Folder.Write("x.log", log)}).Output;
    EXPECT_THAT(all, StartsWith(R"({"index":0,"type":4)"));
    EXPECT_EQ(RunCommandLineTool({"export", Folder / "service.zip"}).Output, all);
    EXPECT_EQ(RunCommandLineTool({"export", Folder / "own.qorvix"}).Output, all);
    const ProgramResult filtered =
        RunCommandLineTool({"export", Folder / "own.qorvix", "--use-archive-filters"});
    EXPECT_THAT(filtered.Output, StartsWith(R"({"index":1,"type":7)"));
    EXPECT_EQ(RunCommandLineTool({"export", Folder / "service.zip", "--use-archive-filters"}).Output, all);
}

TEST_F(ExportCommand, ArchiveWithoutLogbookIsToldOnce) {
    WriteZip(Folder / "a.zip", {{"readme", "x"}});
    const ProgramResult result = RunCommandLineTool({"export", Folder / "a.zip", "--language", "de"});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_EQ(result.Output, "");
    EXPECT_EQ(result.Errors,
              "qorvix-cli: Das Archiv enthält keine Logbuchdatei (" + (Folder / "a.zip") + ")\n");
}

TEST_F(ExportCommand, WrongUsageIsStatusTwo) {
    const std::vector<std::string> wrong[] = {
        {},
        {"export"},
        {"unknown"},
        {"--unknown"},
        {"export", "a.log", "b.log"},
        {"export", "a.log", "--format", "xml"},
        {"export", "a.log", "--output", ""},
        {"export", "a.log", "--filters", ""},
        {"export", "a.log", "--filters", "a.fil", "--stored-filters"},
        {"export", "a.log", "--use-archive-filters", "--stored-filters"},
        {"export", "a.log", "--language", "fr"}};
    for (const std::vector<std::string>& arguments : wrong) {
        const ProgramResult result = RunCommandLineTool(arguments);
        EXPECT_EQ(result.ExitStatus, 2);
        EXPECT_EQ(result.Output, "");
        EXPECT_NE(result.Errors, "");
    }
}

TEST_F(ExportCommand, WhatIsUnknownIsNamedInItsOrder) {
    const std::pair<std::vector<std::string>, const char*> wrong[] = {
        {{"export", "a.log", "b.log"}, " was not expected: b.log"},
        {{"export", "a.log", "b.log", "--raw", "c.log", "--format", "csv", "-z"},
         "s were not expected: b.log c.log -z"},
        {{"--first", "export", "a.log", "--second", "--third=3"},
         "s were not expected: --first --second --third=3"},
        {{"find", "--whole", "a.log"}, " was not expected: --whole"},
        // Behind an unknown command nothing is known.
        {{"exprt", "a.log", "--format", "csv"}, " was not expected: exprt"},
        {{"--first", "exprt", "a.log"}, "s were not expected: --first exprt"},
        {{"--versoin"}, " was not expected: --versoin"}};
    for (const auto& [arguments, unknown] : wrong) {
        const ProgramResult result = RunCommandLineTool(arguments);
        EXPECT_EQ(result.ExitStatus, 2);
        EXPECT_EQ(result.Output, "");
        EXPECT_EQ(result.Errors, std::string("The following argument") + unknown +
                                     "\nRun with --help for more information.\n");
    }
    EXPECT_THAT(RunCommandLineTool({"export"}).Errors, StartsWith("FILE is required"));
    EXPECT_THAT(RunCommandLineTool({}).Errors, StartsWith("A subcommand is required"));
}

TEST_F(ExportCommand, HelpAndVersionAreDone) {
    EXPECT_EQ(RunCommandLineTool({"--help"}).ExitStatus, 0);
    EXPECT_THAT(RunCommandLineTool({"export", "--help"}).Output, HasSubstr("--format"));
    EXPECT_THAT(RunCommandLineTool({"--version"}).Output, StartsWith("qorvix-cli "));
}
