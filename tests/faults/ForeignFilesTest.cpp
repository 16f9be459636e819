// SPDX-License-Identifier: MIT
// What is not the program's own: folders and files that look like its own, and links that others planted.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"
#include "support/ReadText.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class ForeignFiles : public FaultTest {
  protected:
    // Exports a logbook to its end; gives the number of rows.
    std::size_t Export(const std::string& log, const std::string& tool = Tool) const {
        RunningProgram program(tool, {"export", log}, Variables());
        std::size_t rows = 0;
        while (program.Hear())
            ++rows;
        EXPECT_EQ(program.WaitForEnd(), GoodEnd) << program.Errors();
        EXPECT_EQ(program.Errors(), "");
        return rows;
    }

    // A file in a folder of the person, below the folder for temporary files.
    std::string WriteTemp(const std::string& name, const std::string& content) const {
        fs::create_directories((Temp + "/" + name).substr(0, (Temp + "/" + name).rfind('/')));
        return Folder.Write("temp/" + name, content);
    }

    const std::string Archive = Work + "/a.qorvix";
};

class ForeignLinks : public ForeignFiles {
  protected:
    ForeignLinks() {
        fs::create_directory(Shared);
        fs::permissions(Shared, fs::perms::all | fs::perms::sticky_bit);
        fs::create_directory(Victim);
        Precious = Folder.Write("victim/precious.txt", "precious");
    }

    static bool CanPlant() { return geteuid() == 0; }

    // A link of another user.
    std::string Plant(const std::string& name, const std::string& target) const {
        const std::string link = Shared + "/" + name;
        fs::create_symlink(target, link);
        EXPECT_EQ(lchown(link.c_str(), 65534, 65534), 0);
        return link;
    }

    void ExpectRefusal(const std::vector<std::string>& arguments, const std::string& message) const {
        std::string errors;
        EXPECT_EQ(RunTool(arguments, {}, errors), (ProgramEnd{1, 0}));
        EXPECT_EQ(errors, "qorvix-cli: " + message + "\n");
        EXPECT_EQ(FileContent(Precious), "precious");
        EXPECT_EQ(NamesIn(Victim), std::vector<std::string>{"precious.txt"});
    }

    const std::string Shared = Folder / "shared";
    const std::string Victim = Folder / "victim";
    const std::string Log = Folder.Write("work/a.log", LogbookOf(3));
    const std::string Reason = "another user's link in a folder that all may write to";
    const std::string GermanReason =
        "Verknüpfung eines anderen Benutzers in einem Ordner, in den alle schreiben dürfen";
    std::string Precious;
};

} // namespace

TEST_F(ForeignFiles, FoldersOfThePersonStayWithTheLogbookThatIsOpened) {
    const std::string log = WriteTemp("Qorvix/customer/small.log", LogbookOf(3));
    const std::string beside = WriteTemp("Qorvix-temp-backup-of-press-7/small.log", LogbookOf(4));
    const std::string sixLetters = WriteTemp("Qorvix-temp-backup/small.log", LogbookOf(5));
    for (const char* folder : {"/Qorvix", "/Qorvix-temp-backup"})
        fs::permissions(Temp + folder, fs::perms::owner_all); // as the program's own have it
    WriteZip(Archive, {{"a.log", LogbookOf(2)}});
    EXPECT_EQ(Export(log), 3U);
    EXPECT_EQ(Export(beside), 4U);
    EXPECT_EQ(Export(sixLetters), 5U);
    EXPECT_EQ(Export(Archive), 2U);
    EXPECT_EQ(FileContent(log), LogbookOf(3));
    EXPECT_EQ(FileContent(beside), LogbookOf(4));
    EXPECT_EQ(FileContent(sixLetters), LogbookOf(5));
    EXPECT_EQ(NamesIn(Temp),
              (std::vector<std::string>{"Qorvix", "Qorvix-temp-backup", "Qorvix-temp-backup-of-press-7"}));
    EXPECT_EQ(NamesIn(Temp + "/Qorvix"), std::vector<std::string>{"customer"});

    ProgramWindow window({log}, Variables());
    window.UntilRows(3);
    window.Close();
    EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    EXPECT_EQ(FileContent(log), LogbookOf(3));
}

TEST_F(ForeignFiles, ProgramInSuchAFolderStays) {
    const std::string log = WriteTemp("Qorvix/small.log", LogbookOf(3));
    const std::string tool = Temp + "/Qorvix/qorvix-cli";
    fs::copy_file(Tool, tool);
    fs::permissions(Temp + "/Qorvix", fs::perms::owner_all);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(Export(log, tool), 3U);
    EXPECT_EQ(NamesIn(Temp + "/Qorvix"), (std::vector<std::string>{"qorvix-cli", "small.log"}));
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>{"Qorvix"});
}

TEST_F(ForeignFiles, LogbookThatAKilledCopyUnpackedCanBeOpened) {
    WriteZip(Archive, {{"a.log", LogbookOf(3)}});
    {
        ProgramWindow window({Archive}, Variables());
        window.UntilRows(3);
        window.Program().Kill();
        EXPECT_EQ(window.Program().WaitForEnd(), KilledEnd);
    }
    const std::string unpacked = Temp + "/Qorvix/a.log";
    EXPECT_EQ(Export(unpacked), 3U);
    {
        ProgramWindow window({unpacked}, Variables());
        window.UntilRows(3);
        window.Close();
        EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    }
    EXPECT_EQ(FileContent(unpacked), LogbookOf(3));
    // Nobody wants it any more.
    EXPECT_EQ(Export(Archive), 3U);
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
}

TEST_F(ForeignFiles, WhatAPersonPutsIntoTheFolderOfACopyThatRunsStays) {
    WriteZip(Archive, {{"a.log", LogbookOf(3)}});
    ProgramWindow window({Archive}, Variables());
    window.UntilRows(3);
    const std::string notes = WriteTemp("Qorvix/notes/a.txt", "notes");
    const std::string log = WriteTemp("Qorvix/b.log", LogbookOf(5));
    // Another logbook of that name is shown, and the person's stays.
    WriteZip(Work + "/b.qorvix", {{"b.log", LogbookOf(4)}});
    window.Open(Work + "/b.qorvix");
    window.UntilRows(4);
    EXPECT_EQ(FileContent(log), LogbookOf(5));
    window.Trigger("mnuViewRefresh");
    window.UntilRows(4);
    window.Close();
    EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    EXPECT_EQ(FileContent(notes), "notes");
    EXPECT_EQ(FileContent(log), LogbookOf(5));
    EXPECT_EQ(NamesIn(Temp + "/Qorvix"), (std::vector<std::string>{"b.log", "notes"}));
}

TEST_F(ForeignFiles, SavingKeepsFilesWithSimilarNames) {
    const std::string log = Folder.Write("work/a.log", LogbookOf(3));
    const std::vector<std::string> others = {
        "case.qorvix.1.part",
        "case.qorvix.2.part",
        "case.qorvix.20260105.part.bak",
        "case.qorvix.qorvix-part-",
        "case.qorvix.qorvix-part-0123456789abcde",
        "case.qorvix.qorvix-part-0123456789abcdef.bak",
        "case.qorvix.qorvix-part-0123456789abcdeg",
        "case.qorvix.qorvix-part-0123456789ABCDEF",
        "case.qorvix2.qorvix-part-0123456789abcdef",
    };
    for (const std::string& name : others)
        Folder.Write("work/" + name, "precious");
    const std::string folder = Work + "/case.qorvix.qorvix-part-00000000000000aa";
    fs::create_directory(folder);
    const std::string link = Work + "/case.qorvix.qorvix-part-00000000000000bb";
    fs::create_symlink("case.qorvix.1.part", link);
    const std::string ofOther = Folder.Write("work/case.qorvix.qorvix-part-00000000000000cc", "other");
    if (geteuid() == 0) {
        EXPECT_EQ(lchown(ofOther.c_str(), 65534, 65534), 0);
    }
    const std::string left = Folder.Write("work/case.qorvix.qorvix-part-00000000000000dd", "half");
    std::string errors;
    EXPECT_EQ(RunTool({"pack", log, Work + "/case.qorvix"}, {}, errors), GoodEnd) << errors;
    EXPECT_EQ(ReadZip(Work + "/case.qorvix").size(), 3U);
    for (const std::string& name : others)
        EXPECT_EQ(FileContent(Work + "/" + name), "precious") << name;
    EXPECT_TRUE(fs::is_directory(folder));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(fs::exists(ofOther), geteuid() == 0);
    EXPECT_FALSE(fs::exists(left));
}

TEST_F(ForeignLinks, PlantedLinkIsRefused) {
    if (!CanPlant())
        GTEST_SKIP() << "only root can make a link of another user";
    const std::string list = Plant("list.csv", Precious);
    const std::string archive = Plant("a.qorvix", Precious);
    const std::string missing = Plant("new.csv", Victim + "/new.csv");
    for (const std::string& link : {list, missing}) {
        ExpectRefusal({"export", Log, "--output", link}, link + ": " + Reason);
        ExpectRefusal({"find", Log, "1", "--output", link, "--language", "de"}, link + ": " + GermanReason);
    }
    ExpectRefusal({"pack", Log, archive}, "The archive could not be saved (" + archive + ": " + Reason + ")");
    // A link to a link, and one to a folder on the way.
    fs::create_symlink(list, Work + "/own.csv");
    ExpectRefusal({"export", Log, "--output", Work + "/own.csv"}, Work + "/own.csv: " + Reason);
    const std::string through = Plant("folder", Victim) + "/precious.txt";
    ExpectRefusal({"export", Log, "--output", through}, through + ": " + Reason);
    // Not even a device is written to.
    const std::string device = Plant("device", "/dev/null");
    ExpectRefusal({"export", Log, "--output", device}, device + ": " + Reason);

    ProgramWindow window({Log}, Variables());
    window.UntilShown();
    window.SaveAs(archive);
    if (const std::string question = window.Message(); question.find("already exists") != std::string::npos)
        window.Press("Yes");
    window.Until([](const Sight& sight) { return sight.Text.starts_with("The archive could"); },
                 "the message");
    EXPECT_EQ(window.Message(), "The archive could not be saved (" + archive + ": " + Reason + ")");
    EXPECT_EQ(FileContent(Precious), "precious");
}

TEST_F(ForeignLinks, OtherLinksAreFollowed) {
    if (!CanPlant())
        GTEST_SKIP() << "only root can make a link of another user";
    std::string errors;
    // This user's own link, and anybody's in a folder that only its owner writes to.
    fs::create_symlink(Victim + "/own.csv", Shared + "/own.csv");
    EXPECT_EQ(RunTool({"export", Log, "--output", Shared + "/own.csv"}, {}, errors), GoodEnd) << errors;
    EXPECT_TRUE(fs::is_regular_file(Victim + "/own.csv"));
    const std::string link = Plant("list.csv", Precious);
    fs::permissions(Shared, fs::perms(0755));
    EXPECT_EQ(RunTool({"export", Log, "--output", link}, {}, errors), GoodEnd) << errors;
    EXPECT_NE(FileContent(Precious), "precious");
    EXPECT_TRUE(fs::is_symlink(link));
    // The owner of the folder is trusted.
    fs::permissions(Shared, fs::perms::all | fs::perms::sticky_bit);
    EXPECT_EQ(chown(Shared.c_str(), 65534, 65534), 0);
    EXPECT_EQ(RunTool({"export", Log, "--output", link}, {}, errors), GoodEnd) << errors;
}
