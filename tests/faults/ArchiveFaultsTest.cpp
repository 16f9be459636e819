// SPDX-License-Identifier: MIT
// Saving on a disk that fills or fails: a message with the reason, the archive of that name as it was, and
// the comments still in the list.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"
#include "support/ZipReader.h"

namespace {

namespace fs = std::filesystem;

class ArchiveFaults : public FaultTest {
  protected:
    ArchiveFaults() {
        fs::create_directory(Out);
        Folder.Write("out/a.qorvix", "old");
    }

    void ExpectTheOldArchive(const std::string& when) const {
        EXPECT_EQ(FileContent(Archive), "old") << when;
        EXPECT_EQ(NamesIn(Out), std::vector<std::string>{"a.qorvix"}) << when;
    }

    // Saves in the window, replacing the old archive.
    static void Save(ProgramWindow& window, const std::string& archive) {
        window.SaveAs(archive);
        if (const std::string question = window.Message();
            question.find("already exists") != std::string::npos) {
            window.Press("Yes");
            // The old one is none that could be read.
            window.Until(
                [](const Sight& sight) { return sight.Text.starts_with("The archive that is there cannot"); },
                "the question");
            window.Press("Replace");
        }
    }

    std::string NotSaved(const std::string& reason) const {
        return "The archive could not be saved (" + Archive + ": " + reason + ")";
    }

    const std::string LogFile = Folder.Write("work/a.log", LogbookOf(2000));
    const std::string Out = Folder / "out";
    const std::string Archive = Out + "/a.qorvix";
};

} // namespace

TEST_F(ArchiveFaults, DiskThatFillsIsToldAndNothingIsLost) {
    for (const char* bytes : {"0", "1", "5000"}) {
        Folder.Write("out/a.qorvix", "old");
        Fault fault = FullDisk(Out);
        fault.Calls = "w";
        fault.Bytes = bytes;
        fault.While = Folder.Write("filling", "");
        ProgramWindow window({LogFile}, Variables(fault));
        window.UntilShown();
        window.Comment(1, "pump");
        Save(window, Archive);
        const Sight sight = window.Until(
            [](const Sight& seen) { return seen.Text.starts_with("The archive could"); }, "the message");
        EXPECT_EQ(sight.Text, NotSaved("Write error: No space left on device")) << bytes;
        EXPECT_FALSE(sight.Progress);
        EXPECT_EQ(sight.Status, "Ready");
        ExpectTheOldArchive(bytes);
        window.Press("OK");
        EXPECT_EQ(window.UntilIdle().Cells[1][6], "pump");

        // The disk has room again.
        fs::remove(fault.While);
        Save(window, Archive);
        window.UntilIdle();
        ASSERT_EQ(ReadZip(Archive).size(), 3U) << bytes;
        EXPECT_EQ(ReadZip(Archive)[0].second, LogbookOf(2000));
        EXPECT_EQ(ReadZip(Archive)[2].second, "[Comments]\r\n 1 pump\r\n");
        EXPECT_EQ(NamesIn(Out), std::vector<std::string>{"a.qorvix"});
        // Saved comments are not asked about.
        window.Close();
        EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
        EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
    }
}

TEST_F(ArchiveFaults, ReadOnlyFolderIsToldAtTheClosingToo) {
    ProgramWindow window({LogFile}, Variables(ReadOnlyDisk(Out)));
    window.UntilShown();
    window.Comment(1, "pump");
    Save(window, Archive);
    window.Until([](const Sight& sight) { return sight.Text.starts_with("The archive could"); },
                 "the message");
    EXPECT_EQ(window.Message(), NotSaved("Read-only file system"));
    window.Press("OK");
    window.UntilIdle();
    ExpectTheOldArchive("read-only");

    // Another folder takes it.
    window.Close();
    EXPECT_EQ(window.Message(), "Comments edited. Save into logbook archive?");
    window.Press("Yes");
    window.ChooseFile(Work + "/b.qorvix");
    EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    EXPECT_EQ(ReadZip(Work + "/b.qorvix")[2].second, "[Comments]\r\n 1 pump\r\n");
}
