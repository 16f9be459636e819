// SPDX-License-Identifier: MIT
// Which exports become one logbook, and what is printed of them.
#include "cli/StitchTest.h"
#include "support/OddFiles.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using testing::HasSubstr;

namespace {

class StitchCommand : public StitchTest {};

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

TEST_F(StitchCommand, WrongUsage) {
    EXPECT_EQ(Run({Old, "--output", Out}).ExitStatus, 2);
    EXPECT_EQ(Run({Old, New}).ExitStatus, 2);
    EXPECT_EQ(Run({Old, New, "--output", ""}).ExitStatus, 2);
    EXPECT_EQ(Run({Old, New, "--output", Out, "--format", "csv"}).ExitStatus, 2);
}
