// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"
#include "support/OddFiles.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdio>
#include <filesystem>
#include <thread>

using testing::HasSubstr;

namespace {

using Members = std::vector<std::pair<std::string, std::string>>;

// Events with these numbers, each with its own second.
std::string Events(int begin, int end) {
    std::vector<std::string> lines;
    for (int number = begin; number < end; ++number) {
        char stamp[32];
        std::snprintf(stamp, sizeof stamp, "04.01.2010 12:%02d:%02d", number / 60, number % 60);
        lines.push_back(Header("BERR:    " + std::to_string(number), stamp));
    }
    return Lines(lines);
}

class StitchCommand : public testing::Test {
  protected:
    ProgramResult Run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "stitch");
        return RunCommandLineTool(arguments);
    }

    // Stitches and gives what was printed.
    std::string Stitch(const std::vector<std::string>& arguments, const std::string& errors = "") {
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.ExitStatus, 0);
        EXPECT_EQ(result.Errors, errors);
        return result.Output;
    }

    // Fails in both languages with these messages, prints nothing, and writes nothing: neither where nothing
    // is yet nor over a file that is there.
    void ExpectFailure(const std::vector<std::string>& sources, const std::string& english,
                       const std::string& german) {
        for (const std::string& output : {Out, OutArchive})
            for (const bool isThere : {false, true})
                for (const bool isGerman : {false, true}) {
                    std::filesystem::remove(output);
                    if (isThere)
                        Folder.Write(output == Out ? "out.log" : "out.qorvix", "old");
                    const std::size_t files = CountFiles();
                    std::vector<std::string> arguments = sources;
                    arguments.insert(arguments.end(),
                                     {"--output", output, "--language", isGerman ? "de" : "en"});
                    const ProgramResult result = Run(arguments);
                    EXPECT_EQ(result.ExitStatus, 1);
                    EXPECT_EQ(result.Output, "");
                    EXPECT_EQ(result.Errors, "qorvix-cli: " + (isGerman ? german : english) + "\n");
                    EXPECT_EQ(FileContent(output), isThere ? "old" : "");
                    EXPECT_EQ(CountFiles(), files);
                    std::filesystem::remove(output);
                }
    }

    std::size_t CountFiles() const {
        std::size_t count = 0;
        for ([[maybe_unused]] const auto& item : std::filesystem::directory_iterator(Folder.Path()))
            ++count;
        return count;
    }

    TemporaryFolder Folder;
    const std::string Out = Folder / "out.log";
    const std::string OutArchive = Folder / "out.qorvix";
    const std::string Old = Folder.Write("old.log", Events(0, 30));
    const std::string New = Folder.Write("new.log", Events(15, 50).substr(20));
};

} // namespace

TEST_F(StitchCommand, MakesOneLogbookInAnyOrder) {
    const std::string pair =
        Old + ", " + New + ": common lines: 14; entries: 14; shift of entry numbers: +16\n";
    EXPECT_EQ(Stitch({Old, New, "--output", Out}), pair);
    EXPECT_EQ(FileContent(Out), Events(0, 50));
    std::filesystem::remove(Out);
    EXPECT_EQ(Stitch({"--output", Out, New, Old}), pair);
    EXPECT_EQ(FileContent(Out), Events(0, 50));
    EXPECT_FALSE(std::filesystem::exists(Folder / "out.cmt"));
    EXPECT_EQ(Stitch({Old, New, "--output", Out, "--language", "de"}),
              Old + ", " + New +
                  ": gemeinsame Zeilen: 14; Einträge: 14; Verschiebung der Eintragsnummern: +16\n");
}

TEST_F(StitchCommand, PrintsEachPairAsJson) {
    const std::string newest = Folder.Write("newest.log", Events(40, 60));
    std::istringstream lines(Stitch({newest, Old, New, "--output", Out, "--format", "jsonl"}));
    std::vector<nlohmann::json> pairs;
    for (std::string line; std::getline(lines, line);)
        pairs.push_back(nlohmann::json::parse(line));
    ASSERT_EQ(pairs.size(), 2U);
    EXPECT_EQ(
        pairs[0],
        (nlohmann::json{
            {"older", Old}, {"newer", New}, {"overlap_lines", 14}, {"overlap_entries", 14}, {"shift", 16}}));
    EXPECT_EQ(
        pairs[1],
        (nlohmann::json{
            {"older", New}, {"newer", newest}, {"overlap_lines", 9}, {"overlap_entries", 9}, {"shift", 40}}));
    EXPECT_EQ(FileContent(Out), Events(0, 60));
}

TEST_F(StitchCommand, ShiftLeadsToTheSameEntry) {
    const std::string heading = "Operation Logbook Version 1.0\r\n";
    std::string older = heading;
    std::string newer = heading;
    for (int i = 0; i < 40; ++i) {
        char stamp[32];
        std::snprintf(stamp, sizeof stamp, "04.01.2010 12:00:%02d", i);
        const std::string event = Lines({Header("Info:    HMI", stamp), "  " + std::to_string(i)});
        older += i < 30 ? event : "";
        newer += i >= 10 ? event : "";
    }
    // The newer export begins within a message.
    newer = heading + newer.substr(newer.find("  11"));
    const auto pair = nlohmann::json::parse(Stitch(
        {Folder.Write("a.log", newer), Folder.Write("b.log", older), "--output", Out, "--format", "jsonl"}));
    EXPECT_EQ(pair["shift"], 12);
    const auto dataOf = [](const std::string& file, int number) {
        std::istringstream rows(RunCommandLineTool({"export", file}).Output);
        std::string row;
        for (int i = 0; i <= number; ++i)
            std::getline(rows, row);
        return nlohmann::json::parse(row)["data"].get<std::string>();
    };
    EXPECT_EQ(dataOf(Folder / "a.log", 3), "15");
    EXPECT_EQ(dataOf(Out, 15), "15");
}

TEST_F(StitchCommand, TakesArchivesAsSources) {
    // Two archives whose logbooks have one name.
    WriteZip(Folder / "first.zip", {{"logbook/lb_act.log", Events(0, 30)}});
    WriteZip(Folder / "second.zip", {{"logbook/lb_act.log", Events(15, 50)}});
    WriteZip(Folder / "third.qorvix", {{"third.log", Events(35, 60)}});
    EXPECT_THAT(
        Stitch({Folder / "third.qorvix", Folder / "second.zip", Folder / "first.zip", "--output", Out}),
        HasSubstr("first.zip, " + (Folder / "second.zip")));
    EXPECT_EQ(FileContent(Out), Events(0, 60));
}

TEST_F(StitchCommand, DuplicateIsSaidAndAddsNothing) {
    const std::string part = Folder.Write("part.log", Events(5, 25));
    Stitch({Old, New, Old, part, "--output", Out},
           "qorvix-cli: " + Old + ": adds nothing, all of its lines are in " + Old + "\nqorvix-cli: " + part +
               ": adds nothing, all of its lines are in " + Old + "\n");
    EXPECT_EQ(FileContent(Out), Events(0, 50));
}

TEST_F(StitchCommand, CommentsAndFiltersTravelToAnArchive) {
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
TEST_F(StitchCommand, NewestExportMayEndWithinAnEvent) {
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

TEST_F(StitchCommand, DuplicateWithCommentsBringsThemToTheOnlyExport) {
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

TEST_F(StitchCommand, StitchedAgainAddsNoTextToComments) {
    WriteZip(Folder / "old.qorvix", {{"old.log", Events(0, 30)}, {"old.cmt", "[Comments]\r\n 20 A\r\n"}});
    WriteZip(Folder / "new.qorvix", {{"new.log", Events(15, 50)}, {"new.cmt", "[Comments]\r\n 5 B\r\n"}});
    Stitch({Folder / "old.qorvix", Folder / "new.qorvix", "--output", OutArchive});
    const std::string newest = Folder.Write("newest.log", Events(40, 60));
    EXPECT_EQ(
        Run({OutArchive, Folder / "old.qorvix", Folder / "new.qorvix", newest, "--output", Out}).ExitStatus,
        0);
    EXPECT_EQ(FileContent(Folder / "out.cmt"), "[Comments]\r\n 20 B | A\r\n");
}

TEST_F(StitchCommand, CommentsStandBesideAPlainLogbook) {
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

TEST_F(StitchCommand, CommentWithoutAPlaceIsListed) {
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

TEST_F(StitchCommand, CommentsFileOfOthersIsNotReplaced) {
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

TEST_F(StitchCommand, EmptyCommentsFileIsReplaced) {
    WriteZip(Folder / "old.qorvix", {{"old.log", Events(0, 30)}, {"old.cmt", "[Comments]\r\n 3 oil\r\n"}});
    for (const char* const empty : {"", "[Comments]\r\n", "[Comments]\n\n"}) {
        Folder.Write("out.log", "old");
        Folder.Write("out.cmt", empty);
        Stitch({Folder / "old.qorvix", New, "--output", Out});
        EXPECT_EQ(FileContent(Folder / "out.cmt"), "[Comments]\r\n 3 oil\r\n");
    }
}

// The logbook of one run never stands beside the comments of the other, and no comment is lost.
TEST_F(StitchCommand, TwoRunsOntoOneLogbookDoNotMix) {
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

TEST_F(StitchCommand, CommentsBesideAnExportAreSaidNotToBeTaken) {
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

TEST_F(StitchCommand, FiltersByNumberGoWithTheirEntries) {
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
TEST_F(StitchCommand, ExportWithTheNameOfAPartFileIsKept) {
    const std::string left = Folder.Write("out.log.qorvix-part-0123456789abcdef", Events(0, 30));
    const ProgramResult result = Run({left, New, "--output", Out});
    EXPECT_EQ(result.ExitStatus, 1);
    EXPECT_EQ(result.Errors, "qorvix-cli: " + Out + ": the result would replace one of its sources\n");
    EXPECT_EQ(FileContent(left), Events(0, 30));
    EXPECT_EQ(RunCommandLineTool({"sessions", left, "--output", Out}).ExitStatus, 1);
    EXPECT_EQ(FileContent(left), Events(0, 30));
}

TEST_F(StitchCommand, ArchiveWithOtherCommentsIsNotReplaced) {
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

TEST_F(StitchCommand, WhatDoesNotFitIsRefused) {
    const std::string names = Old + ", " + Folder / "b.log" + ": ";
    const auto refused = [&](const std::string& text, const std::string& english, const std::string& german) {
        const std::string other = Folder.Write("b.log", text);
        ExpectFailure({Old, other}, Old + ", " + other + ": " + english, Old + ", " + other + ": " + german);
    };
    refused(Events(30, 60), "no common lines", "keine gemeinsamen Zeilen");
    refused(Events(25, 60), "too few common lines; at least 8 are needed, found: 4",
            "zu wenige gemeinsame Zeilen; mindestens 8 sind nötig, gefunden: 4");
    refused("another line\r\n" + Events(10, 60), "the lines before the common lines differ",
            "die Zeilen vor den gemeinsamen Zeilen sind verschieden");
    refused("Operation Logbook Version 1.0\r\n" + Events(10, 60),
            "logbooks of different generations or versions",
            "Logbücher verschiedener Generationen oder Versionen");
    refused("_________Mon Jan 04 2010____________\r\n" + Events(10, 60),
            "logbooks of different generations or versions",
            "Logbücher verschiedener Generationen oder Versionen");
    refused("", "no common lines", "keine gemeinsamen Zeilen");
    const std::string equal = Folder.Write(
        "equal.log", Events(0, 3) + Events(3, 4) + Events(3, 4) + Events(3, 4) + Events(3, 4) + Events(3, 4) +
                         Events(3, 4) + Events(3, 4) + Events(3, 4) + Events(3, 4) + Events(3, 4));
    const std::string next =
        Folder.Write("next.log", FileContent(equal).substr(Events(0, 4).size()) + Events(4, 9));
    ExpectFailure({equal, next}, equal + ", " + next + ": the common lines fit at more than one place",
                  equal + ", " + next + ": die gemeinsamen Zeilen passen an mehr als eine Stelle");
    std::string messages;
    for (int i = 0; i < 12; ++i)
        messages += "  text " + std::to_string(i) + "\r\n";
    const std::string early = Folder.Write("early.log", Events(0, 9) + messages);
    const std::string late = Folder.Write("late.log", messages + Events(9, 20));
    ExpectFailure({early, late}, early + ", " + late + ": no time stamp with its date in the common lines",
                  early + ", " + late + ": kein Zeitstempel mit Datum in den gemeinsamen Zeilen");
}

TEST_F(StitchCommand, SameFileTwiceIsNothingToStitch) {
    ExpectFailure({Old, Old},
                  Old + ": adds nothing, all of its lines are in " + Old +
                      "\nqorvix-cli: there is nothing to stitch",
                  Old + ": fügt nichts hinzu, alle Zeilen stehen auch in " + Old +
                      "\nqorvix-cli: es gibt nichts zusammenzufügen");
}

TEST_F(StitchCommand, WhatIsNoExportIsRefused) {
    const std::string folder = Folder.Path().string();
    ExpectFailure({Old, folder}, folder + ": Is a directory", folder + ": Ein Ordner, keine Datei");
    const std::string missing = Folder / "missing.log";
    ExpectFailure({missing, Old}, missing + ": No such file or directory",
                  missing + ": Datei oder Ordner nicht gefunden");
    for (const char* const name : {"folder.zip", "folder.qorvix"}) {
        std::filesystem::create_directory(Folder / name);
        ExpectFailure({Old, Folder / name}, (Folder / name) + ": Is a directory",
                      (Folder / name) + ": Ein Ordner, keine Datei");
    }
    for (const std::string& name : NoFiles(Folder))
        ExpectFailure({Old, name}, name + ": not a regular file", name + ": keine gewöhnliche Datei");
}

TEST_F(StitchCommand, CutArchiveIsRefused) {
    WriteZip(Folder / "whole.qorvix", {{"a.log", Events(10, 60)}, {"a.cmt", "[Comments]\r\n 0 a\r\n"}});
    const std::string whole = FileContent(Folder / "whole.qorvix");
    for (const std::size_t size : {whole.size() - 1, whole.size() / 2, std::size_t{10}}) {
        const std::string cut = Folder.Write("cut.qorvix", whole.substr(0, size));
        ExpectFailure({Old, cut}, "The archive contains no logbook file (" + cut + ": not a zip archive)",
                      "Das Archiv enthält keine Logbuchdatei (" + cut + ": kein ZIP-Archiv)");
    }
    const std::string empty = Folder / "empty.zip";
    WriteZip(empty, {{"readme.txt", "a"}});
    ExpectFailure({Old, empty}, "The archive contains no logbook file (" + empty + ")",
                  "Das Archiv enthält keine Logbuchdatei (" + empty + ")");
}

TEST_F(StitchCommand, DamagedCommentsAndFiltersAreRefused) {
    WriteZip(Folder / "new.qorvix", {{"new.log", Events(15, 50)}, {"new.cmt", "letter\r\n"}});
    EXPECT_EQ(Run({Old, Folder / "new.qorvix", "--output", Out}).ExitStatus, 1);
    WriteZip(Folder / "new.qorvix", {{"new.log", Events(15, 50)}, {"new.fil", "letter\r\n"}});
    EXPECT_EQ(Run({Old, Folder / "new.qorvix", "--output", OutArchive}).ExitStatus, 1);
    EXPECT_FALSE(std::filesystem::exists(Out));
    EXPECT_FALSE(std::filesystem::exists(OutArchive));
    // A plain logbook needs no filters.
    EXPECT_EQ(Run({Old, Folder / "new.qorvix", "--output", Out}).ExitStatus, 0);
}

TEST_F(StitchCommand, OutputIsNeverASourceAndHasItsName) {
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

TEST_F(StitchCommand, WrongUsage) {
    EXPECT_EQ(Run({Old, "--output", Out}).ExitStatus, 2);
    EXPECT_EQ(Run({Old, New}).ExitStatus, 2);
    EXPECT_EQ(Run({Old, New, "--output", ""}).ExitStatus, 2);
    EXPECT_EQ(Run({Old, New, "--output", Out, "--format", "csv"}).ExitStatus, 2);
}
