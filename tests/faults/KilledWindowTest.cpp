// SPDX-License-Identifier: MIT
// The window killed while it saves, and while it shows an archive.
#include "faults/KilledProgram.h"
#include "faults/ProgramWindow.h"

namespace fs = std::filesystem;

TEST_F(KilledProgram, WindowAtEveryCall) {
    int killed = 0;
    for (bool wasKilled = true; wasKilled; ++killed) {
        PutOld();
        fs::remove_all(State); // the killed window before has left its comment there
        ProgramWindow window({LogFile}, Variables(KilledAt(Out, killed)));
        window.UntilShown();
        window.Comment(1, "new");
        window.SaveAs(Archive);
        EXPECT_NE(window.Message().find("already exists"), std::string::npos);
        window.Press("Yes");
        window.Close();
        const ProgramEnd end = window.Program().WaitForEnd();
        wasKilled = end == KilledEnd;
        EXPECT_TRUE(wasKilled || end == GoodEnd) << killed;
        ExpectAWholeArchive(killed);
        ExpectToSaveAgain(killed);
        ASSERT_LT(killed, 500);
    }
    EXPECT_GT(killed, 5);
}

TEST_F(KilledProgram, WindowThatIsKilledLeavesTheNextAWorkingFolder) {
    PutOld();
    {
        ProgramWindow window({Archive}, Variables());
        EXPECT_EQ(window.Message(), "Replace active filter list?");
        window.Program().Kill();
        EXPECT_EQ(window.Program().WaitForEnd(), KilledEnd);
        EXPECT_EQ(NamesIn(Temp), std::vector<std::string>{"Qorvix"});
    }
    ProgramWindow window({Archive}, Variables());
    EXPECT_EQ(window.Message(), "Replace active filter list?");
    window.Press("No");
    EXPECT_EQ(window.UntilShown().Counts, "2000 / 2000 Items");
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>{"Qorvix"});
    window.Close();
    EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
}
