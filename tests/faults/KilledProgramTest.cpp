// SPDX-License-Identifier: MIT
// The program killed at every call that changes the archive's folder while it saves: the old archive is there
// whole, or the new one, and the next saving leaves nothing else.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"
#include "support/ZipReader.h"

namespace {

namespace fs = std::filesystem;

using Members = std::vector<std::pair<std::string, std::string>>;

class KilledProgram : public FaultTest {
  protected:
    KilledProgram() {
        Empty();
        EXPECT_EQ(Pack("old", {}), GoodEnd);
        EXPECT_EQ(ReadZip(Archive), Content("old"));
        old_ = FileContent(Archive);
    }

    void Empty() const {
        fs::remove_all(Out);
        fs::create_directory(Out);
    }

    // The archive whose comment is "old", and nothing else.
    void PutOld() const {
        Empty();
        Folder.Write("out/a.qorvix", old_);
    }

    ProgramEnd Pack(const std::string& comment, const Fault& fault) {
        std::string errors;
        const std::string comments = Folder.Write("work/a.cmt", "[Comments]\r\n 1 " + comment + "\r\n");
        const ProgramEnd end =
            RunTool({"pack", LogFile, Archive, "--comments", comments, "--drop-comments"}, fault, errors);
        EXPECT_EQ(errors, "");
        return end;
    }

    static Members Content(const std::string& comment) {
        return {{"a.log", LogbookOf(2000)},
                {"a.fil", "[Filters]\r\nI|0||||1\r\n"},
                {"a.cmt", "[Comments]\r\n 1 " + comment + "\r\n"}};
    }

    // After a program was killed; `call` says where.
    void ExpectAWholeArchive(int call) {
        const Members members = ReadZip(Archive);
        EXPECT_TRUE(members == Content("old") || members == Content("new")) << call;
    }

    // The next saving works, and removes what was left.
    void ExpectToSaveAgain(int call) {
        EXPECT_EQ(Pack("next", {}), GoodEnd) << call;
        EXPECT_EQ(ReadZip(Archive), Content("next")) << call;
        EXPECT_EQ(NamesIn(Out), std::vector<std::string>{"a.qorvix"}) << call;
        EXPECT_EQ(NamesIn(Temp), std::vector<std::string>()) << call;
    }

    const std::string LogFile = Folder.Write("work/a.log", LogbookOf(2000));
    const std::string Out = Folder / "out";
    const std::string Archive = Out + "/a.qorvix";

  private:
    std::string old_;
};

} // namespace

TEST_F(KilledProgram, ToolAtEveryCall) {
    int killed = 0;
    for (ProgramEnd end = KilledEnd; end == KilledEnd; ++killed) {
        PutOld();
        end = Pack("new", KilledAt(Out, killed));
        EXPECT_TRUE(end == KilledEnd || end == GoodEnd) << killed;
        ExpectAWholeArchive(killed);
        ExpectToSaveAgain(killed);
        ASSERT_LT(killed, 500);
    }
    EXPECT_GT(killed, 5);
}

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

TEST_F(KilledProgram, FirstSavingAtEveryCall) {
    int killed = 0;
    for (ProgramEnd end = KilledEnd; end == KilledEnd; ++killed) {
        Empty();
        end = Pack("new", KilledAt(Out, killed));
        EXPECT_TRUE(!fs::exists(Archive) || ReadZip(Archive) == Content("new")) << killed;
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
