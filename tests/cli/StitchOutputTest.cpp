// SPDX-License-Identifier: MIT
// What stitching writes: comments, filters, and files that it must not replace.
#include "cli/StitchTest.h"
#include "support/Abilities.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>
#include <utility>

using testing::HasSubstr;

namespace {

using Members = std::vector<std::pair<std::string, std::string>>;

class StitchOutput : public StitchTest {};

} // namespace

TEST_F(StitchOutput, CommentsAndFiltersTravelToAnArchive) {
    const std::string filters = "[Filters]\r\nI|7||||1\r\n";
    WriteZip(Folder / "old.qorvix", {{"old.log", Events(0, 30)},
                                     {"old.fil", "[Filters]\r\nI|0||||1\r\n"},
                                     {"old.cmt", "[Comments]\r\n 3 \"oil, K\xFChlung\"\r\n 20 pump\r\n"}});
    WriteZip(Folder / "new.qorvix", {{"new.log", Events(15, 50)},
                                     {"new.fil", filters},
                                     {"new.cmt", "[Comments]\r\n 5 new pump\r\n 30 door\r\n"}});
    Stitch({Folder / "old.qorvix", Folder / "new.qorvix", "--output", OutArchive});
    EXPECT_EQ(ReadZip(OutArchive),
              (Members{{"out.log", Events(0, 50)},
                       {"out.fil", filters},
                       {"out.cmt",
                        "[Comments]\r\n 3 \"oil, K\xFChlung\"\r\n 20 new pump | pump\r\n 45 door\r\n"}}));
    // Stitched again, nothing is lost, so that the archive is replaced.
    Stitch({Folder / "old.qorvix", Folder / "new.qorvix", "--output", OutArchive});
    // Without filters, all entries are shown.
    Stitch({Old, New, "--output", Folder / "plain.qorvix"});
    EXPECT_EQ(ReadZip(Folder / "plain.qorvix"), (Members{{"plain.log", Events(0, 50)},
                                                         {"plain.fil", "[Filters]\r\nI|0||||1\r\n"},
                                                         {"plain.cmt", "[Comments]\r\n"}}));
}

// The list of such a logbook ends where an error ends the read; its lines are all there.
TEST_F(StitchOutput, NewestExportMayEndWithinAnEvent) {
    WriteZip(Folder / "old.qorvix", {{"old.log", Events(0, 30)}, {"old.cmt", "[Comments]\r\n 3 oil\r\n"}});
    const std::string block = Header("BREG:") + "\r\n  R0 0x00000000\r\n";
    for (const std::string& end : {block, std::string("Key:     Y-")}) {
        Folder.Write("new.log", Events(15, 50) + end);
        for (const std::string& file : {Out, OutArchive, Folder / "out.cmt"})
            std::filesystem::remove(file);
        Stitch({Folder / "old.qorvix", New, "--output", Out});
        EXPECT_EQ(FileContent(Out), Events(0, 50) + end);
        Stitch({Folder / "old.qorvix", New, "--output", OutArchive});
        EXPECT_EQ(ReadZip(OutArchive), (Members{{"out.log", Events(0, 50) + end},
                                                {"out.fil", "[Filters]\r\nI|0||||1\r\n"},
                                                {"out.cmt", "[Comments]\r\n 3 oil\r\n"}}));
    }
}

TEST_F(StitchOutput, DuplicateWithCommentsBringsThemToTheOnlyExport) {
    WriteZip(Folder / "part.qorvix", {{"part.log", Events(5, 25)}, {"part.cmt", "[Comments]\r\n 3 oil\r\n"}});
    const std::string part = Folder / "part.qorvix";
    EXPECT_EQ(Stitch({part, Old, "--output", OutArchive},
                     "qorvix-cli: " + part + ": adds nothing, all of its lines are in " + Old + "\n"),
              "");
    EXPECT_EQ(ReadZip(OutArchive)[2].second, "[Comments]\r\n 8 oil\r\n");

    // The same bytes with another comment, and then with none that is new.
    WriteZip(Folder / "a.qorvix", {{"a.log", Events(0, 30)}, {"a.cmt", "[Comments]\r\n 3 pump\r\n"}});
    WriteZip(Folder / "b.qorvix",
             {{"b.log", Events(0, 30)}, {"b.cmt", "[Comments]\r\n 3 pump\r\n 4 door\r\n"}});
    Stitch({Folder / "a.qorvix", Folder / "b.qorvix", "--output", Out},
           "qorvix-cli: " + (Folder / "b.qorvix") + ": adds nothing, all of its lines are in " +
               (Folder / "a.qorvix") + "\n");
    EXPECT_EQ(FileContent(Out), Events(0, 30));
    EXPECT_EQ(FileContent(Folder / "out.cmt"), "[Comments]\r\n 3 pump\r\n 4 door\r\n");
    EXPECT_EQ(Run({Folder / "b.qorvix", Folder / "a.qorvix", "--output", Out}).ExitStatus, 1);
    EXPECT_EQ(Run({Folder / "b.qorvix", Folder / "b.qorvix", "--output", Out}).ExitStatus, 1);
}

TEST_F(StitchOutput, StitchedAgainAddsNoTextToComments) {
    WriteZip(Folder / "old.qorvix", {{"old.log", Events(0, 30)}, {"old.cmt", "[Comments]\r\n 20 A\r\n"}});
    WriteZip(Folder / "new.qorvix", {{"new.log", Events(15, 50)}, {"new.cmt", "[Comments]\r\n 5 B\r\n"}});
    Stitch({Folder / "old.qorvix", Folder / "new.qorvix", "--output", OutArchive});
    const std::string newest = Folder.Write("newest.log", Events(40, 60));
    EXPECT_EQ(
        Run({OutArchive, Folder / "old.qorvix", Folder / "new.qorvix", newest, "--output", Out}).ExitStatus,
        0);
    EXPECT_EQ(FileContent(Folder / "out.cmt"), "[Comments]\r\n 20 B | A\r\n");
}

TEST_F(StitchOutput, CommentsStandBesideAPlainLogbook) {
    WriteZip(Folder / "old.qorvix",
             {{"old.log", Events(0, 30)}, {"old.cmt", "[Comments]\r\n 3 \"oil, filter\"\r\n"}});
    Stitch({Folder / "old.qorvix", New, "--output", Out});
    EXPECT_EQ(FileContent(Folder / "out.cmt"), "[Comments]\r\n 3 \"oil, filter\"\r\n");
    // With one more export, both files are replaced.
    WriteZip(Folder / "newest.qorvix",
             {{"newest.log", Events(40, 60)}, {"newest.cmt", "[Comments]\r\n 0 forty\r\n"}});
    Stitch({Folder / "old.qorvix", New, Folder / "newest.qorvix", "--output", Out});
    EXPECT_EQ(FileContent(Folder / "out.cmt"), "[Comments]\r\n 3 \"oil, filter\"\r\n 40 forty\r\n");
    EXPECT_EQ(FileContent(Out), Events(0, 60));
}

TEST_F(StitchOutput, CommentWithoutAPlaceIsListed) {
    WriteZip(Folder / "new.qorvix",
             {{"new.log", Events(15, 50).substr(1)},
              {"new.cmt", "[Comments]\r\n 0 of a cut line\r\n 1 sixteen\r\n 99 beyond\r\n"}});
    const std::string name = Folder / "new.qorvix";
    Stitch({Old, name, "--output", Out},
           "qorvix-cli: " + name +
               ": the comment of entry 0 has no place in the result: of a cut line\nqorvix-cli: " + name +
               ": the comment of entry 99 has no place in the result: beyond\n");
    EXPECT_EQ(FileContent(Folder / "out.cmt"), "[Comments]\r\n 16 sixteen\r\n");
    EXPECT_THAT(Run({Old, name, "--output", Out, "--language", "de"}).Errors,
                HasSubstr("der Kommentar zu Eintrag 99 hat im Ergebnis keinen Platz: beyond\n"));
}

TEST_F(StitchOutput, CommentsFileOfOthersIsNotReplaced) {
    WriteZip(Folder / "old.qorvix", {{"old.log", Events(0, 30)}, {"old.cmt", "[Comments]\r\n 3 oil\r\n"}});
    const auto refused = [&](const std::string& log, const std::string& comments, const std::string& reason) {
        for (const std::string& source : {Old, Folder / "old.qorvix"}) {
            std::filesystem::remove(Out);
            if (!log.empty())
                Folder.Write("out.log", log);
            const std::string file = Folder.Write("out.cmt", comments);
            const ProgramResult result = Run({source, New, "--output", Out});
            EXPECT_EQ(result.ExitStatus, 1);
            EXPECT_EQ(result.Output, "");
            EXPECT_EQ(result.Errors, "qorvix-cli: " + file + ": " + reason + "\n");
            EXPECT_EQ(FileContent(Out), log);
            EXPECT_EQ(FileContent(file), comments);
        }
    };
    refused("", "[Comments]\r\n 3 oil\r\n", "is there without its logbook and is not replaced");
    refused("old", "[Comments]\r\n 3 mine\r\n 5 mine\r\n", "comments in this file that the result lacks: 2");
    // The same text at another entry, and what a reader of comments leaves out.
    refused("old", "[Comments]\r\n 4 oil\r\n", "comments in this file that the result lacks: 1");
    refused("old", "[Comments]\r\n 3 oil, and more\r\n", "comments in this file that the result lacks: 1");
    refused("old", "[Comments]\r\n 3 oil, first\r\n 3 oil, second\r\nnotes\r\n",
            "comments in this file that the result lacks: 3");
    refused("old", "letter\r\n", "File includes no comment information!");
}

TEST_F(StitchOutput, EmptyCommentsFileIsReplaced) {
    WriteZip(Folder / "old.qorvix", {{"old.log", Events(0, 30)}, {"old.cmt", "[Comments]\r\n 3 oil\r\n"}});
    for (const char* const empty : {"", "[Comments]\r\n", "[Comments]\n\n"}) {
        Folder.Write("out.log", "old");
        Folder.Write("out.cmt", empty);
        Stitch({Folder / "old.qorvix", New, "--output", Out});
        EXPECT_EQ(FileContent(Folder / "out.cmt"), "[Comments]\r\n 3 oil\r\n");
    }
}

// The logbook of one run never stands beside the comments of the other, and no comment is lost.
TEST_F(StitchOutput, TwoRunsOntoOneLogbookDoNotMix) {
    WriteZip(Folder / "old.qorvix", {{"old.log", Events(0, 30)}, {"old.cmt", "[Comments]\r\n 3 A\r\n"}});
    WriteZip(Folder / "older.qorvix",
             {{"older.log", Events(60, 90)}, {"older.cmt", "[Comments]\r\n 3 B\r\n"}});
    const std::string newer = Folder.Write("newer.log", Events(75, 120));
    for (int round = 0; round < 20; ++round) {
        std::filesystem::remove(Out);
        std::filesystem::remove(Folder / "out.cmt");
        ProgramResult first;
        std::thread other([&] { first = Run({Folder / "old.qorvix", New, "--output", Out}); });
        const ProgramResult second = Run({Folder / "older.qorvix", newer, "--output", Out});
        other.join();
        EXPECT_EQ(first.ExitStatus + second.ExitStatus, 1) << first.Errors << second.Errors;
        const bool isFirst = first.ExitStatus == 0;
        EXPECT_EQ(FileContent(Out), isFirst ? Events(0, 50) : Events(60, 120));
        EXPECT_EQ(FileContent(Folder / "out.cmt"),
                  isFirst ? "[Comments]\r\n 3 A\r\n" : "[Comments]\r\n 3 B\r\n");
    }
}

TEST_F(StitchOutput, CommentsBesideAnExportAreSaidNotToBeTaken) {
    const std::string comments = Folder.Write("old.cmt", "[Comments]\r\n 3 oil\r\n");
    Stitch({Old, New, "--output", OutArchive},
           "qorvix-cli: " + comments +
               ": these comments are not taken; pack them with their logbook first\n");
    EXPECT_EQ(ReadZip(OutArchive)[2].second, "[Comments]\r\n");
    EXPECT_THAT(
        Run({Old, New, "--output", OutArchive, "--language", "de"}).Errors,
        HasSubstr("diese Kommentare werden nicht übernommen; packen Sie sie zuerst mit ihrem Logbuch"));
    EXPECT_EQ(FileContent(comments), "[Comments]\r\n 3 oil\r\n");
}

TEST_F(StitchOutput, FiltersByNumberGoWithTheirEntries) {
    WriteZip(Folder / "new.qorvix",
             {{"new.log", Events(15, 50)}, {"new.fil", "[Filters]\r\nI|0||||1\r\nH|8|3-5,20|||1\r\n"}});
    Stitch({Old, Folder / "new.qorvix", "--output", OutArchive});
    EXPECT_EQ(ReadZip(OutArchive)[1].second, "[Filters]\r\nI|0||||1\r\nH|8|18-20,35|||1\r\n");

    // Nobody knows the numbers of an export that lies in another one.
    WriteZip(Folder / "part.qorvix",
             {{"part.log", Events(20, 40)},
              {"part.fil", "[Filters]\r\nI|0||||1\r\nX|8|3|||1\r\nX|3|BERR|||1\r\n"}});
    const std::string plain = Folder.Write("plain.log", Events(15, 50));
    std::filesystem::remove(OutArchive);
    const std::string part = Folder / "part.qorvix";
    Stitch({Old, plain, part, "--output", OutArchive},
           "qorvix-cli: " + part + ": adds nothing, all of its lines are in " + plain + "\nqorvix-cli: " +
               part + ": filters by number are not taken, as the numbers of the entries are unknown\n");
    EXPECT_EQ(ReadZip(OutArchive)[1].second, "[Filters]\r\nI|0||||1\r\nX|3|BERR|||1\r\n");
    EXPECT_THAT(
        Run({Old, plain, part, "--output", OutArchive, "--language", "de"}).Errors,
        HasSubstr(
            "Filter nach Nummern werden nicht übernommen, weil die Nummern der Einträge unbekannt sind"));
}

// What a killed run left may be the only copy that a person has.
TEST_F(StitchOutput, ExportWithTheNameOfAPartFileIsKept) {
    const std::string left = Folder.Write("out.log.qorvix-part-0123456789abcdef", Events(0, 30));
    const ProgramResult result = Run({left, New, "--output", Out});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_EQ(result.Errors, "qorvix-cli: " + Out + ": the result would replace one of its sources\n");
    EXPECT_EQ(FileContent(left), Events(0, 30));
    EXPECT_EQ(RunCommandLineTool({"sessions", left, "--output", Out}).ExitStatus, 1);
    EXPECT_EQ(FileContent(left), Events(0, 30));
}

TEST_F(StitchOutput, ArchiveWithOtherCommentsIsNotReplaced) {
    WriteZip(OutArchive, {{"out.log", Events(0, 30)}, {"out.cmt", "[Comments]\r\n 3 mine\r\n"}});
    const std::string before = FileContent(OutArchive);
    const ProgramResult result = Run({Old, New, "--output", OutArchive});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_EQ(result.Output, "");
    EXPECT_EQ(result.Errors,
              "qorvix-cli: " + OutArchive +
                  ": Comments in the archive that the list does not have, or has otherwise: 1\n");
    EXPECT_EQ(FileContent(OutArchive), before);
}

TEST_F(StitchOutput, DamagedCommentsAndFiltersAreRefused) {
    WriteZip(Folder / "new.qorvix", {{"new.log", Events(15, 50)}, {"new.cmt", "letter\r\n"}});
    EXPECT_EQ(Run({Old, Folder / "new.qorvix", "--output", Out}).ExitStatus, 1);
    WriteZip(Folder / "new.qorvix", {{"new.log", Events(15, 50)}, {"new.fil", "letter\r\n"}});
    EXPECT_EQ(Run({Old, Folder / "new.qorvix", "--output", OutArchive}).ExitStatus, 1);
    EXPECT_FALSE(std::filesystem::exists(Out));
    EXPECT_FALSE(std::filesystem::exists(OutArchive));
    // A plain logbook needs no filters.
    EXPECT_EQ(Run({Old, Folder / "new.qorvix", "--output", Out}).ExitStatus, 0);
}

TEST_F(StitchOutput, OutputIsNeverASourceAndHasItsName) {
    NEEDS_LINKS();
    std::filesystem::create_hard_link(Old, Folder / "link.log");
    std::filesystem::create_symlink(New, Folder / "symbolic.log");
    for (const std::string& output :
         {Old, New, Folder / "link.log", Folder / "symbolic.log", Folder / "sub/../old.log"}) {
        std::filesystem::create_directories(Folder / "sub");
        const ProgramResult result = Run({Old, New, "--output", output});
        EXPECT_EQ(result.ExitStatus, 1) << output;
        EXPECT_EQ(result.Errors, "qorvix-cli: " + output + ": the result would replace one of its sources\n");
        EXPECT_EQ(Run({Old, New, "--output", output, "--language", "de"}).Errors,
                  "qorvix-cli: " + output + ": das Ergebnis würde eine seiner Quellen ersetzen\n");
    }
    EXPECT_EQ(FileContent(Old), Events(0, 30));
    EXPECT_EQ(FileContent(New), Events(15, 50).substr(20));
    for (const char* const name : {"out", "out.txt", "out.log.gz", "log"}) {
        const ProgramResult result = Run({Old, New, "--output", Folder / name});
        EXPECT_EQ(result.ExitStatus, 1);
        EXPECT_EQ(result.Errors,
                  "qorvix-cli: " + (Folder / name) + ": the name must end with .log or .qorvix\n");
        EXPECT_FALSE(std::filesystem::exists(Folder / name));
    }
    const ProgramResult nowhere = Run({Old, New, "--output", Folder / "nowhere/out.log"});
    EXPECT_EQ(nowhere.ExitStatus, 1);
    EXPECT_EQ(nowhere.Errors,
              "qorvix-cli: " + (Folder / "nowhere/out.log") + ": No such file or directory\n");
}
