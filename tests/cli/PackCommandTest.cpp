// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"
#include "support/Abilities.h"
#include "support/OddFiles.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

using testing::HasSubstr;

namespace {

using Members = std::vector<std::pair<std::string, std::string>>;

class PackCommand : public testing::Test {
  protected:
    // Packs into "out.qorvix" and gives its members.
    Members Pack(const std::string& source, std::vector<std::string> options = {}) {
        options.insert(options.begin(), {"pack", source, Out});
        const ProgramResult result = RunCommandLineTool(options);
        EXPECT_EQ(result.ExitStatus, 0);
        EXPECT_EQ(result.Output, "");
        EXPECT_EQ(result.Errors, "");
        return ReadZip(Out);
    }

    // Packing fails with this message and leaves the archive that was there.
    void ExpectFailure(std::vector<std::string> arguments, const std::string& message) {
        Folder.Write("out.qorvix", "old");
        arguments.insert(arguments.begin(), "pack");
        const ProgramResult result = RunCommandLineTool(arguments);
        EXPECT_EQ(result.ExitStatus, 1);
        EXPECT_EQ(result.Output, "");
        EXPECT_EQ(result.Errors, "qorvix-cli: " + message + "\n");
        EXPECT_EQ(FileContent(Out), "old");
    }

    const std::string Log = Lines({Header("BERR:    a"), Header("RESET:"), Header("BERR:    K\xFChlung")});
    const std::string AllFilters = "[Filters]\r\nI|0||||1\r\n";
    TemporaryFolder Folder;
    const std::string Out = Folder / "out.qorvix";
};

} // namespace

// A run that says that it saved has saved, whatever another one did at the same moment.
TEST_F(PackCommand, TwoRunsOntoOneArchiveLoseNoComment) {
    const std::string log = Folder.Write("a.log", Log);
    const std::string a = Folder.Write("a.cmt", "[Comments]\r\n 0 pump\r\n");
    const std::string b = Folder.Write("b.cmt", "[Comments]\r\n 2 valve\r\n");
    for (int round = 0; round < 20; ++round) {
        std::filesystem::remove(Out);
        Pack(log);
        ProgramResult first;
        std::thread other([&] {
            first = RunCommandLineTool({"pack", log, Out, "--comments", a, "--keep-comments"});
        });
        const ProgramResult second =
            RunCommandLineTool({"pack", log, Out, "--comments", b, "--keep-comments"});
        other.join();
        const std::string comments = ReadZip(Out)[2].second;
        EXPECT_TRUE(first.ExitStatus == 0 || second.ExitStatus == 0) << first.Errors << second.Errors;
        EXPECT_TRUE(first.ExitStatus != 0 || comments.find("pump") != std::string::npos) << comments;
        EXPECT_TRUE(second.ExitStatus != 0 || comments.find("valve") != std::string::npos) << comments;
    }
}

TEST_F(PackCommand, EverySourceGivesItsLogbook) {
    WriteZip(Folder / "older.zip", {{"logbook/lb_act.log", Log}});
    WriteZip(Folder / "inner.zip", {{"runtime/operation.log", Log}});
    WriteZip(Folder / "newer.zip", {{"sysroot.zip", FileContent(Folder / "inner.zip")}});
    WriteZip(Folder / "own.qorvix", {{"own.log", Log}});
    const Members expected{{"out.log", Log}, {"out.fil", AllFilters}, {"out.cmt", "[Comments]\r\n"}};
    for (const std::string& source :
         {Folder.Write("a.log", Log), Folder / "older.zip", Folder / "newer.zip", Folder / "own.qorvix"})
        EXPECT_EQ(Pack(source), expected) << source;
}

TEST_F(PackCommand, LogbookWithoutEventsIsPacked) {
    const Members expected{{"out.log", "nothing"}, {"out.fil", AllFilters}, {"out.cmt", "[Comments]\r\n"}};
    EXPECT_EQ(Pack(Folder.Write("a.log", "nothing")), expected);
}

TEST_F(PackCommand, FiltersAndCommentsOfAnOwnArchiveAreTakenOver) {
    const std::string filters = "[Filters]\r\nI|7||||1\r\n";
    const std::string comments = "[Comments]\r\n 1 \"oil, K\xFChlung\"\r\n";
    WriteZip(Folder / "own.qorvix", {{"own.log", Log}, {"own.fil", filters}, {"own.cmt", comments}});
    EXPECT_EQ(Pack(Folder / "own.qorvix"),
              (Members{{"out.log", Log}, {"out.fil", filters}, {"out.cmt", comments}}));
    const std::string otherFilters = "[Filters]\r\nX|4||||0\r\n";
    EXPECT_EQ(
        Pack(Folder / "own.qorvix",
             {"--filters", Folder.Write("a.fil", otherFilters), "--comments",
              Folder.Write("a.cmt", "[Comments]\n2,other\n9,none\n"), "--drop-comments"}),
        (Members{{"out.log", Log}, {"out.fil", otherFilters}, {"out.cmt", "[Comments]\r\n 2 other\r\n"}}));
}

TEST_F(PackCommand, ArchiveMayReplaceItsSource) {
    WriteZip(Out, {{"old name.log", Log}, {"old name.cmt", "[Comments]\r\n 0 a\r\n"}});
    EXPECT_EQ(Pack(Out),
              (Members{{"out.log", Log}, {"out.fil", AllFilters}, {"out.cmt", "[Comments]\r\n 0 a\r\n"}}));
}

TEST_F(PackCommand, CommentsOfTheReplacedArchiveAreNotLostUnasked) {
    const std::string log = Folder.Write("a.log", Log + Lines({Header("BERR:    new")}));
    const std::string comments = Folder.Write("a.cmt", "[Comments]\n0,new\n2,also\n");
    WriteZip(Out, {{"a.log", Log}, {"a.cmt", "[Comments]\r\n 0 old\r\n 1 \"oil, filter\"\r\n"}});
    const std::string before = FileContent(Out);
    const auto refused = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"pack", log, Out});
        const ProgramResult result = RunCommandLineTool(options);
        EXPECT_EQ(result.ExitStatus, 1);
        EXPECT_EQ(FileContent(Out), before);
        return result.Errors;
    };
    const std::string notSaved = "qorvix-cli: The archive could not be saved (" + Out + ": ";
    EXPECT_EQ(refused({}), notSaved +
                               "Comments in the archive that the list does not have, or has otherwise: 2; "
                               "--keep-comments keeps them too, --drop-comments lets them go)\n");
    EXPECT_EQ(refused({"--comments", comments, "--language", "de"}),
              "qorvix-cli: Das Archiv konnte nicht gespeichert werden (" + Out +
                  ": Kommentare im Archiv, die in der Liste fehlen oder dort anders lauten: 2; "
                  "--keep-comments behält sie, --drop-comments gibt sie auf)\n");
    EXPECT_EQ(Pack(log, {"--comments", comments, "--keep-comments"})[2].second,
              "[Comments]\r\n 0 new | old\r\n 1 \"oil, filter\"\r\n 2 also\r\n");
    // Nothing is lost with what is the same.
    EXPECT_EQ(Pack(Out)[2].second, "[Comments]\r\n 0 new | old\r\n 1 \"oil, filter\"\r\n 2 also\r\n");
    EXPECT_EQ(Pack(log, {"--drop-comments"})[2].second, "[Comments]\r\n");
}

TEST_F(PackCommand, CommentsOfAnotherLogbookCanOnlyBeDropped) {
    const std::string log = Folder.Write("a.log", Log);
    for (const bool damaged : {false, true}) {
        WriteZip(Out, {{"a.log", "another"}, {"a.cmt", "[Comments]\r\n 0 old\r\n"}});
        if (damaged)
            Folder.Write("out.qorvix", "damaged");
        const std::string before = FileContent(Out);
        const ProgramResult result = RunCommandLineTool({"pack", log, Out, "--keep-comments"});
        EXPECT_EQ(result.ExitStatus, 1);
        EXPECT_EQ(
            result.Errors,
            "qorvix-cli: The archive could not be saved (" + Out + ": " +
                (damaged ? "The archive that is there cannot be read (not a zip archive)"
                         : "Comments in the archive on another logbook, or on another state of this one: 1") +
                "; --drop-comments lets comments in it go)\n");
        EXPECT_EQ(FileContent(Out), before);
        EXPECT_EQ(Pack(log, {"--drop-comments"})[2].second, "[Comments]\r\n");
    }
}

TEST_F(PackCommand, ExportPrintsTheCommentsOfAnArchive) {
    Pack(Folder.Write("a.log", Log),
         {"--comments", Folder.Write("a.cmt", "[Comments]\r\n 0 \"oil, K\xFChlung\"\r\n")});
    const ProgramResult result = RunCommandLineTool({"export", Out, "--format", "csv"});
    EXPECT_EQ(result.Output, "index,type,event,data,sender,name,time,icon,highlighted,comment\r\n"
                             "0,4,Fatal,a,,,04.01.2010 12:34:56.789,4,false,\"oil, Kühlung\"\r\n"
                             "1,7,Restart,,,,04.01.2010 12:34:56.789,8,false,\r\n"
                             "2,4,Fatal,Kühlung,,,04.01.2010 12:34:56.789,4,false,\r\n");
    EXPECT_THAT(RunCommandLineTool({"export", Out}).Output, HasSubstr(R"("comment":"oil, Kühlung"})"));
}

TEST_F(PackCommand, DamagedCommentsOfAnArchiveAreToldAndTheListIsPrinted) {
    WriteZip(Folder / "own.qorvix", {{"own.log", Log}, {"own.cmt", "no comments"}});
    const ProgramResult result = RunCommandLineTool({"export", Folder / "own.qorvix"});
    EXPECT_EQ(result.ExitStatus, 0);
    EXPECT_THAT(result.Errors, HasSubstr("own.cmt: File includes no comment information!\n"));
    EXPECT_EQ(result.Output, RunCommandLineTool({"export", Folder.Write("a.log", Log)}).Output);
    // An archive without them would lose them.
    const ProgramResult pack = RunCommandLineTool({"pack", Folder / "own.qorvix", Out});
    EXPECT_EQ(pack.ExitStatus, 1);
    EXPECT_THAT(pack.Errors, HasSubstr("own.cmt: File includes no comment information!\n"));
    EXPECT_FALSE(std::filesystem::exists(Out));
}

TEST_F(PackCommand, FilesOfAnArchiveAreToldByItsName) {
    const std::string own = Folder / "own.qorvix";
    WriteZip(own, {{"x.log", Log}, {"x.cmt", "no comments"}});
    ExpectFailure({own, Out}, own + ": x.cmt: File includes no comment information!");
    WriteZip(own, {{"x.log", Log}, {"x.fil", "[Filters]\nnonsense\n"}});
    ExpectFailure({own, Out}, own + ": x.fil: invalid filter in line 2");
    EXPECT_EQ(RunCommandLineTool({"export", own, "--use-archive-filters"}).Errors,
              "qorvix-cli: " + own + ": x.fil: invalid filter in line 2\n");
}

TEST_F(PackCommand, WhatFailsLeavesTheArchive) {
    const std::string log = Folder.Write("a.log", Log);
    const std::string missing = Folder / "missing";
    ExpectFailure({missing + ".log", Out}, "Error opening logbook file: " + missing + ".log");
    ExpectFailure({Folder.Write("empty.log", ""), Out},
                  "Error opening logbook file: " + (Folder / "empty.log"));
    ExpectFailure({missing + ".log", Out, "--language", "de"},
                  "Fehler beim Zugriff auf das Logbuch: " + missing + ".log");
    ExpectFailure({log, Out, "--filters", missing},
                  "Cannot read filter file  \"" + missing + "\" (No such file or directory)");
    ExpectFailure({log, Out, "--comments", missing},
                  "Cannot read comments file (" + missing + ": No such file or directory)");
    ExpectFailure({log, Out, "--comments", log}, log + ": File includes no comment information!");
    ExpectFailure({log, Folder / "missing/a.qorvix"}, "The archive could not be saved (" +
                                                          (Folder / "missing/a.qorvix") +
                                                          ": No such file or directory)");
    WriteZip(Folder / "none.zip", {{"readme", "x"}});
    ExpectFailure({Folder / "none.zip", Out},
                  "The archive contains no logbook file (" + (Folder / "none.zip") + ")");
}

TEST_F(PackCommand, ReasonsFollowTheLanguage) {
    NEEDS_LINKS();
    const std::string log = Folder.Write("a.log", Log);
    std::filesystem::create_symlink(log, Folder / "link.qorvix");
    const std::string link = Folder / "link.qorvix";
    ExpectFailure({log, link, "--language", "de"},
                  "Das Archiv konnte nicht gespeichert werden (" + link +
                      ": das Archiv würde die Logbuchdatei selbst ersetzen)");
    EXPECT_EQ(FileContent(log), Log);
}

TEST_F(PackCommand, WhatIsNoFileIsNeitherReadNorReplaced) {
    NEEDS_NAMED_PIPES();
    const std::string log = Folder.Write("a.log", Log);
    for (const std::string& none : NoFiles(Folder)) {
        ExpectFailure({log, Out, "--filters", none},
                      "Cannot read filter file  \"" + none + "\" (not a regular file)");
        ExpectFailure({log, Out, "--comments", none, "--language", "de"},
                      "Kommentardatei kann nicht gelesen werden (" + none + ": keine gewöhnliche Datei)");
    }
    const std::string pipe = MakePipe(Folder, "pipe.qorvix");
    ExpectFailure({log, pipe}, "The archive could not be saved (" + pipe + ": not a regular file)");
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST_F(PackCommand, WrongUsageIsStatusTwo) {
    const std::vector<std::string> wrong[] = {
        {"pack"},
        {"pack", "a.log"},
        {"pack", "a.log", "a.zip"},
        {"pack", "a.log", "qorvix"},
        {"pack", "a.log", "a.qorvix", "b"},
        {"pack", "a.log", "a.qorvix", "--filters", ""},
        {"pack", "a.log", "a.qorvix", "--comments", ""},
        {"pack", "a.log", "a.qorvix", "--keep-comments", "--drop-comments"},
        {"pack", "a.log", "a.qorvix", "--language", "fr"}};
    for (const std::vector<std::string>& arguments : wrong)
        EXPECT_EQ(RunCommandLineTool(arguments).ExitStatus, 2);
    EXPECT_THAT(RunCommandLineTool({"pack", "--help"}).Output, HasSubstr("--comments"));
}
