// SPDX-License-Identifier: MIT
// Error texts that are taken over, and lists that are exported, on a disk that fails: what failed is told,
// and each file is the old one or the new one; what the person had stays beside it.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"

#include <cerrno>

namespace {

namespace fs = std::filesystem;

class ErrorTextsFaults : public FaultTest {
  protected:
    ErrorTextsFaults() {
        fs::create_directories(Folder.Path() / "control/GERMAN");
        Folder.Write("control/GERMAN/error.a", "the new text");
        Folder.Write("control/A_EN.XMT", "another new text");
    }

    // The person's own folder, with one of the files.
    void PutOwn() const {
        fs::remove_all(Folder.Path() / "data");
        fs::create_directories(fs::path(Own) / "GERMAN");
        std::ofstream(Own + "GERMAN/error.a") << "the person's own text";
    }

    // Takes over as far as the message at the end, and gives it.
    std::string Take(ProgramWindow& window) const {
        window.Trigger("mnuAnalysisErrorTexts");
        window.Until([](const Sight& sight) { return sight.Front == "frmErrorTexts"; }, "the dialog");
        window.Press("cmdFolder");
        window.ChooseFile(Folder / "control");
        window.Until([](const Sight& sight) { return sight.Front == "frmErrorTexts"; }, "the dialog");
        window.Press("cmdOK");
        return window.Message();
    }

    const std::string LogFile = Folder.Write("work/a.log", LogbookOf(500));
    const std::string Own = Folder / "data/VELTRANDOR/Qorvix/language/";
    const std::string File = Own + "GERMAN/error.a";
};

} // namespace

TEST_F(ErrorTextsFaults, EveryFailingCallIsToldOrHarmless) {
    int failing = 0;
    for (bool isTold = true; isTold; ++failing) {
        ASSERT_LT(failing, 100);
        PutOwn();
        ProgramWindow window({LogFile}, Variables({Folder / "data", "cowr", ENOSPC, failing}));
        window.UntilShown();
        const std::string message = Take(window);
        isTold = message.starts_with("Not all error texts were taken over (");
        if (isTold)
            EXPECT_NE(message.find(": No space left on device)\n"), std::string::npos) << message;
        else
            EXPECT_EQ(message, "Files taken over: 2\nFiles replaced by them, and kept as .bak: 1");
        const std::string content = FileContent(File);
        if (content != "the person's own text" || !isTold) {
            EXPECT_EQ(content, "the new text") << failing;
            EXPECT_EQ(FileContent(File + ".bak"), "the person's own text") << failing;
        }
        window.Press("OK");
        window.UntilIdle();
        window.Close();
        EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    }
    EXPECT_GT(failing, 8);
}

TEST_F(ErrorTextsFaults, ProgramKilledAtEveryCallLosesNothing) {
    int killed = 0;
    for (ProgramEnd end = KilledEnd; end == KilledEnd; ++killed) {
        ASSERT_LT(killed, 100);
        PutOwn();
        ProgramWindow window({LogFile}, Variables(KilledAt(Folder / "data", killed)));
        window.UntilShown();
        window.Trigger("mnuAnalysisErrorTexts");
        window.Until([](const Sight& sight) { return sight.Front == "frmErrorTexts"; }, "the dialog");
        window.Press("cmdFolder");
        window.ChooseFile(Folder / "control");
        window.Until([](const Sight& sight) { return sight.Front == "frmErrorTexts"; }, "the dialog");
        window.Press("cmdOK");
        const auto ends = [&](const Sight& sight) { return !sight.IsShown || sight.Front == "QMessageBox"; };
        if (window.Until(ends, "the end").IsShown) {
            window.Press("OK");
            window.UntilIdle();
            window.Close();
        }
        end = window.Program().WaitForEnd();
        EXPECT_TRUE(end == KilledEnd || end == GoodEnd) << killed;
        const std::string content = FileContent(File);
        if (content != "the person's own text") {
            EXPECT_EQ(content, "the new text") << killed;
            EXPECT_EQ(FileContent(File + ".bak"), "the person's own text") << killed;
        }
        // The next time all are taken, and no part of a file is left.
        ProgramWindow next({LogFile}, Variables());
        next.UntilShown();
        Take(next);
        EXPECT_EQ(FileContent(File), "the new text") << killed;
        EXPECT_EQ(NamesIn(Own + "GERMAN"), (std::vector<std::string>{"error.a", "error.a.bak"})) << killed;
        next.Press("OK");
        next.UntilIdle();
        next.Close();
        EXPECT_EQ(next.Program().WaitForEnd(), GoodEnd);
    }
    EXPECT_GT(killed, 8);
}

TEST_F(ErrorTextsFaults, ExportOnAFailingDiskLeavesTheOldList) {
    const std::string out = Folder / "out";
    const std::string list = out + "/list.csv";
    int failing = 0;
    for (bool isTold = true; isTold; ++failing) {
        ASSERT_LT(failing, 100);
        fs::remove_all(out);
        fs::create_directory(out);
        std::ofstream(list) << "old";
        ProgramWindow window({LogFile}, Variables({out, "cowr", ENOSPC, failing}));
        window.UntilShown();
        window.Trigger("mnuAnalysisExport");
        window.ChooseFile(list);
        window.Message(); // whether to replace it
        window.Press("Yes");
        const auto ends = [](const Sight& sight) {
            return sight.IsIdle() || sight.Text.starts_with("The list could not be exported");
        };
        const Sight sight = window.Until(ends, "the end");
        isTold = !sight.Text.empty();
        if (isTold) {
            EXPECT_EQ(sight.Text, "The list could not be exported (" + list + ": No space left on device)");
            EXPECT_EQ(FileContent(list), "old") << failing;
            window.Press("OK");
            window.UntilIdle();
        }
        window.Close();
        EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    }
    EXPECT_GT(failing, 2);
    EXPECT_NE(FileContent(list).find("0,4,Fatal"), std::string::npos);
}
