// SPDX-License-Identifier: MIT
// The logbook file between its opening and Refresh or saving.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"
#include "support/ReadText.h"
#include "support/ZipReader.h"

namespace {

namespace fs = std::filesystem;

class LogbookFaults : public FaultTest {
  protected:
    void Refresh() { Window.Trigger("mnuViewRefresh"); }

    // Refresh gives these counts, and no message.
    void ExpectInSilence(const std::string& counts) {
        Refresh();
        Window.Until([&](const Sight& sight) { return sight.IsIdle() && sight.Counts == counts; },
                     counts.c_str());
    }

    void ExpectMessage(const std::string& text) {
        EXPECT_EQ(Window.Message(), text);
        Window.Press("OK");
    }

    void ExpectToClose() {
        Window.Close();
        EXPECT_EQ(Window.Program().WaitForEnd(), GoodEnd);
        EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
    }

    const std::string LogFile = Folder.Write("work/a.log", LogbookOf(3));
    const std::string Saved = Work + "/saved.qorvix";
    ProgramWindow Window{{LogFile}, Variables()};
    const Sight First = Window.UntilRows(3);
};

} // namespace

TEST_F(LogbookFaults, DeletedGivesAnEmptyListInSilence) {
    fs::remove(LogFile);
    ExpectInSilence("0 / 3 Items");
    Folder.Write("work/a.log", LogbookOf(4));
    ExpectInSilence("4 / 4 Items");
    ExpectToClose();
}

TEST_F(LogbookFaults, TruncatedShowsWhatIsThere) {
    fs::resize_file(LogFile, LogbookOf(2).size());
    ExpectInSilence("2 / 2 Items");
    fs::resize_file(LogFile, LogbookOf(2).size() - 30);
    ExpectInSilence("2 / 2 Items");
    fs::resize_file(LogFile, 0);
    ExpectInSilence("0 / 2 Items");
    ExpectToClose();
}

TEST_F(LogbookFaults, TruncatedWithinAnEventIsToldOnce) {
    Folder.Write("work/a.log", Lines({Header("BERR:    a"), "RESET:", std::string(100, ' ')}));
    Refresh();
    ExpectMessage("Error reading logbook file");
    EXPECT_EQ(Window.UntilIdle().Counts, "0 / 1 Items");
    Folder.Write("work/a.log", LogbookOf(5));
    ExpectInSilence("5 / 5 Items");
    ExpectToClose();
}

TEST_F(LogbookFaults, ReplacedIsReadAnew) {
    Folder.Write("work/other", LogbookOf(5));
    fs::rename(Folder / "work/other", LogFile);
    ExpectInSilence("5 / 5 Items");
    ExpectToClose();
}

TEST_F(LogbookFaults, FolderInItsPlaceGivesAnEmptyListInSilence) {
    fs::remove(LogFile);
    fs::create_directory(LogFile);
    ExpectInSilence("0 / 3 Items");
    ExpectToClose();
}

TEST_F(LogbookFaults, NoLogbookInItsPlaceIsTold) {
    Folder.Write("work/a.log", "nothing of a logbook\r\n");
    Refresh();
    ExpectMessage("Error applying filters");
    ExpectMessage("Filter error");
    EXPECT_EQ(Window.UntilIdle().Counts, "0 / 1 Items");
    ExpectToClose();
}

TEST_F(LogbookFaults, DeletedIsNotSavedAndTheCommentsStay) {
    Window.Comment(1, "pump");
    fs::remove(LogFile);
    Refresh();
    EXPECT_EQ(Window.Message(), "Comments edited. Save into logbook archive?");
    Window.Press("Yes");
    Window.ChooseFile(Saved);
    ExpectMessage("The archive could not be saved (" + Saved + ": " + LogFile +
                  ": No such file or directory)");
    EXPECT_EQ(Window.UntilIdle().Column(6), (std::vector<std::string>{"", "pump", ""}));
    EXPECT_FALSE(fs::exists(Saved));

    // A logbook of that name that comes back may be another one.
    Folder.Write("work/a.log", LogbookOf(3));
    Window.SaveAs(Saved);
    EXPECT_EQ(Window.Message(), "The logbook file has been changed since it was read. In the archive, "
                                "comments may belong to other entries. Save all the same?");
    Window.Press("Yes");
    Window.UntilIdle();
    EXPECT_EQ(ReadZip(Saved)[2].second, "[Comments]\r\n 1 pump\r\n");
    ExpectToClose();
}

TEST_F(LogbookFaults, ReplacedIsAskedAboutBeforeItIsSaved) {
    Window.Comment(1, "pump");
    Folder.Write("work/a.log", LogbookOf(2));
    Window.SaveAs(Saved);
    EXPECT_EQ(Window.Message(), "The logbook file has been changed since it was read. In the archive, "
                                "comments may belong to other entries. Save all the same?");
    Window.Press("No");
    Window.UntilIdle();
    EXPECT_FALSE(fs::exists(Saved));
    Window.Close();
    EXPECT_EQ(Window.Message(), "Comments edited. Save into logbook archive?");
    Window.Press("No");
    EXPECT_EQ(Window.Program().WaitForEnd(), GoodEnd);
}
