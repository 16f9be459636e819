// SPDX-License-Identifier: MIT
// The temporary folder, which archives are unpacked to and built with: without it, plain logbooks are shown
// as ever, and an archive is a message with the reason.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace {

namespace fs = std::filesystem;
using testing::MatchesRegex;

class TempFolderFaults : public FaultTest {
  protected:
    TempFolderFaults() {
        WriteZip(Archive, {{"a.log", LogbookOf(4)}, {"a.cmt", "[Comments]\r\n 1 pump\r\n"}});
    }

    // What the program says when it opens the archive.
    std::string MessageOfOpening(ProgramWindow& window) const {
        window.Open(Archive);
        const std::string message = window.Message();
        window.Press("OK");
        EXPECT_EQ(window.UntilIdle().Counts, "0 / 3 Items");
        return message;
    }

    // What it says when it saves one.
    std::string MessageOfSaving(ProgramWindow& window) const {
        window.SaveAs(Saved);
        const std::string message = window.Message();
        EXPECT_FALSE(window.See().Progress);
        window.Press("OK");
        window.UntilIdle();
        EXPECT_FALSE(fs::exists(Saved));
        return message;
    }

    // The message that ends with a reason in brackets.
    std::string NotOpened(const std::string& reason) const {
        return "The archive contains no logbook file (" + Archive + ": " + reason + ")";
    }
    std::string NotSaved(const std::string& reason) const {
        return "The archive could not be saved (" + Saved + ": " + reason + ")";
    }

    // Saves, and opens, as if nothing had been.
    void ExpectToWork(ProgramWindow& window) const {
        window.SaveAs(Saved);
        window.UntilIdle();
        EXPECT_EQ(ReadZip(Saved).size(), 3U);
        window.Open(Archive);
        EXPECT_EQ(window.UntilRows(4).Column(6), (std::vector<std::string>{"", "pump", "", ""}));
        window.Close();
        EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
        EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
    }

    static constexpr const char* Mark = ".qorvix-temp";
    const std::string Plain = Folder.Write("work/plain.log", LogbookOf(3));
    const std::string Archive = Work + "/a.qorvix";
    const std::string Saved = Work + "/saved.qorvix";
};

} // namespace

TEST_F(TempFolderFaults, NoFolder) {
    fs::remove(Temp);
    ProgramWindow window({Plain}, Variables());
    EXPECT_EQ(window.UntilShown().Counts, "3 / 3 Items");
    EXPECT_EQ(MessageOfSaving(window), NotSaved("there is no temporary folder"));
    EXPECT_EQ(MessageOfOpening(window), NotOpened("there is no temporary folder"));
    window.Open(Plain);
    window.UntilRows(3);
    window.Close();
    EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    std::string errors;
    EXPECT_EQ(RunTool({"export", Archive}, {}, errors), (ProgramEnd{1, 0}));
    EXPECT_EQ(errors, "qorvix-cli: " + NotOpened("there is no temporary folder") + "\n");
}

TEST_F(TempFolderFaults, FolderThatRefusesForAWhile) {
    Fault fault = ReadOnlyDisk(Temp);
    fault.While = Folder.Write("refusing", "");
    ProgramWindow window({Plain}, Variables(fault));
    EXPECT_EQ(window.UntilShown().Counts, "3 / 3 Items");
    EXPECT_EQ(MessageOfSaving(window), NotSaved("there is no temporary folder"));
    fs::remove(fault.While);
    ExpectToWork(window);
}

TEST_F(TempFolderFaults, DiskThatIsFullForAWhile) {
    Fault fault = FullDisk(Temp);
    fault.Calls = "w";
    fault.While = Work + "/refusing";
    ProgramWindow window({Plain}, Variables(fault));
    EXPECT_EQ(window.UntilShown().Counts, "3 / 3 Items");
    Folder.Write("work/refusing", "");
    EXPECT_EQ(MessageOfSaving(window), NotSaved("the temporary folder cannot be written to"));
    EXPECT_EQ(MessageOfOpening(window), NotOpened("the temporary folder cannot be written to"));
    EXPECT_EQ(NamesIn(Temp + "/Qorvix"), std::vector<std::string>{Mark});
    fs::remove(fault.While);
    window.Open(Plain);
    window.UntilRows(3);
    ExpectToWork(window);
}

TEST_F(TempFolderFaults, DiskThatFillsWhileTheArchiveIsMade) {
    Fault fault = FullDisk(Temp);
    fault.Calls = "w";
    fault.Bytes = "120"; // room for the names of what is made, which are noted before
    fault.While = Work + "/filling";
    ProgramWindow window({Plain}, Variables(fault));
    window.UntilShown();
    window.Comment(1, std::string(200, 'x'));
    Folder.Write("work/filling", "");
    const std::string part = Temp + "/Qorvix/new-......";
    EXPECT_THAT(MessageOfSaving(window),
                MatchesRegex(".*saved.qorvix: " + part + "/comments: No space left on device."));
    EXPECT_EQ(NamesIn(Temp + "/Qorvix"), std::vector<std::string>{Mark});
    fs::remove(fault.While);
    window.SaveAs(Saved);
    window.UntilIdle();
    EXPECT_EQ(ReadZip(Saved).size(), 3U);
}

TEST_F(TempFolderFaults, DiskThatIsFullFromTheBegin) {
    Fault fault = FullDisk(Temp);
    fault.Calls = "w";
    fault.While = Folder.Write("refusing", "");
    ProgramWindow window({Plain}, Variables(fault));
    EXPECT_EQ(window.UntilShown().Counts, "3 / 3 Items");
    EXPECT_EQ(MessageOfSaving(window), NotSaved("there is no temporary folder"));
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
    fs::remove(fault.While);
    ExpectToWork(window);
}

TEST_F(TempFolderFaults, FolderRemovedWhileTheProgramRuns) {
    ProgramWindow window({Plain}, Variables());
    window.UntilShown();
    fs::remove_all(Temp + "/Qorvix");
    ExpectToWork(window);
}

TEST_F(TempFolderFaults, EverythingRemovedWhileTheProgramRuns) {
    ProgramWindow window({Plain}, Variables());
    window.UntilShown();
    fs::remove_all(Temp);
    EXPECT_EQ(MessageOfSaving(window), NotSaved("there is no temporary folder"));
    fs::create_directory(Temp);
    ExpectToWork(window);
}

TEST_F(TempFolderFaults, LogbookOfAnArchiveRemovedWhileItIsShown) {
    ProgramWindow window({Archive}, Variables());
    window.UntilRows(4);
    fs::remove_all(Temp + "/Qorvix");
    EXPECT_EQ(MessageOfSaving(window), NotSaved(Archive + ": a.log: No such file or directory"));
    EXPECT_EQ(window.See().Cells.size(), 4U);
    window.Trigger("mnuViewRefresh");
    EXPECT_EQ(window.UntilRows(0).Counts, "0 / 4 Items");
    window.Open(Archive);
    window.UntilRows(4);
    ExpectToWork(window);
}

TEST_F(TempFolderFaults, FolderThatCannotBeListedIsUsedAllTheSame) {
    std::string errors;
    EXPECT_EQ(RunTool({"pack", Archive, Saved}, {Folder.Path().string(), "l", EIO}, errors), GoodEnd);
    EXPECT_EQ(errors, "");
    EXPECT_EQ(ReadZip(Saved)[2].second, "[Comments]\r\n 1 pump\r\n");
    // What was made is known without a list.
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
}
