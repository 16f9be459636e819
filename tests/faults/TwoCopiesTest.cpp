// SPDX-License-Identifier: MIT
// Two running copies of the program on one archive.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <nlohmann/json.hpp>

namespace {

// The other copy saved one comment that this one does not have.
constexpr const char* ChangedQuestion =
    "The archive has been changed since you opened or saved it, perhaps in another window. Its filters will "
    "be "
    "replaced.\r\n\r\n"
    "Comments in the archive that the list does not have, or has otherwise: 1\r\n\r\n"
    "Keep them too? If they are replaced, they are lost.";

class TwoCopies : public FaultTest {
  protected:
    TwoCopies() { WriteZip(Archive, {{"a.log", LogbookOf(3)}, {"a.cmt", "[Comments]\r\n 0 pump\r\n"}}); }

    // Both show the archive; one after the other writes a comment.
    struct Copies {
        explicit Copies(const TwoCopies& test)
            : First({test.Archive}, test.Variables()), Second({test.Archive}, test.Variables()) {
            First.UntilRows(3);
            Second.UntilRows(3);
            First.Comment(1, "first");
            Second.Comment(2, "second");
        }
        ProgramWindow First;
        ProgramWindow Second;
    };

    // Saves as the archive, which the file dialog asks about as ever.
    void Save(ProgramWindow& window) const {
        window.SaveAs(Archive);
        EXPECT_NE(window.Message().find("already exists"), std::string::npos);
        window.Press("Yes");
    }

    std::string Comments() const {
        const auto members = ReadZip(Archive);
        return members.size() == 3 ? members[2].second : "no archive";
    }

    void ExpectToClose(ProgramWindow& window) const {
        window.Close();
        EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    }

    const std::string Archive = Work + "/a.qorvix";
    const std::string OfFirst = "[Comments]\r\n 0 pump\r\n 1 first\r\n";
    const std::string OfSecond = "[Comments]\r\n 0 pump\r\n 2 second\r\n";
};

} // namespace

TEST_F(TwoCopies, SecondSavingAsksBeforeItReplacesTheFirst) {
    Copies copies(*this);
    Save(copies.First);
    copies.First.UntilIdle();
    EXPECT_EQ(Comments(), OfFirst);

    Save(copies.Second);
    copies.Second.Until([](const Sight& sight) { return sight.Text == ChangedQuestion; }, "the question");
    copies.Second.Press("Cancel");
    copies.Second.UntilIdle();
    EXPECT_EQ(Comments(), OfFirst);

    // The comments are still there, to be saved elsewhere or here.
    copies.Second.Close();
    EXPECT_EQ(copies.Second.Message(), "Comments edited. Save into logbook archive?");
    copies.Second.Press("Yes");
    copies.Second.ChooseFile(Work + "/second.qorvix");
    EXPECT_EQ(copies.Second.Program().WaitForEnd(), GoodEnd);
    EXPECT_EQ(ReadZip(Work + "/second.qorvix")[2].second, OfSecond);
    EXPECT_EQ(Comments(), OfFirst);

    // What the first saved is its own: no question.
    copies.First.Comment(2, "more");
    Save(copies.First);
    copies.First.UntilIdle();
    EXPECT_EQ(Comments(), OfFirst + " 2 more\r\n");
    ExpectToClose(copies.First);
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
}

TEST_F(TwoCopies, CommentsOfBothCanBeKept) {
    Copies copies(*this);
    Save(copies.First);
    copies.First.UntilIdle();
    Save(copies.Second);
    copies.Second.Until([](const Sight& sight) { return sight.Text == ChangedQuestion; }, "the question");
    copies.Second.Press("Keep them too");
    EXPECT_EQ(copies.Second.UntilIdle().Column(6), (std::vector<std::string>{"pump", "first", "second"}));
    EXPECT_EQ(Comments(), OfFirst + " 2 second\r\n");
    ExpectToClose(copies.First);
    ExpectToClose(copies.Second);
}

TEST_F(TwoCopies, FiltersOfTheOtherAreAskedAboutToo) {
    ProgramWindow window({Archive}, Variables());
    window.UntilRows(3);
    window.Comment(1, "mine");
    WriteZip(Archive, {{"a.log", LogbookOf(3)},
                       {"a.fil", "[Filters]\r\nI|4||||1\r\n"},
                       {"a.cmt", "[Comments]\r\n 0 pump\r\n"}});
    Save(window);
    window.Until(
        [](const Sight& sight) {
            return sight.Text == "The archive has been changed since you opened or saved it, perhaps in "
                                 "another window. Its comments and filters would be replaced. Save all the "
                                 "same?";
        },
        "the question");
    window.Press("No");
    window.UntilIdle();
    EXPECT_EQ(Comments(), "[Comments]\r\n 0 pump\r\n");
}

TEST_F(TwoCopies, ReplaceReplaces) {
    Copies copies(*this);
    Save(copies.First);
    copies.First.UntilIdle();
    Save(copies.Second);
    copies.Second.Until([](const Sight& sight) { return sight.Text == ChangedQuestion; }, "the question");
    copies.Second.Press("Replace");
    copies.Second.UntilIdle();
    EXPECT_EQ(Comments(), OfSecond);
    ExpectToClose(copies.First);
    ExpectToClose(copies.Second);
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
    EXPECT_EQ(NamesIn(Work), std::vector<std::string>{"a.qorvix"});
}

TEST_F(TwoCopies, KilledOneLeavesTheOtherItsFiles) {
    Copies copies(*this);
    copies.First.Program().Kill();
    EXPECT_EQ(copies.First.Program().WaitForEnd(), KilledEnd);
    {
        // A third empties and uses what the killed one left, and is offered its comments.
        ProgramWindow third({Archive}, Variables());
        EXPECT_EQ(third.Message(), "Comments on this logbook were not saved the last time. Restore them?");
        third.Press("No");
        third.UntilRows(3);
        ExpectToClose(third);
    }
    Save(copies.Second);
    copies.Second.UntilIdle();
    EXPECT_EQ(Comments(), OfSecond);
    ExpectToClose(copies.Second);
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
}

TEST_F(TwoCopies, BothKeepTheSettingsWhole) {
    Copies copies(*this);
    for (ProgramWindow* window : {&copies.First, &copies.Second}) {
        window->Close();
        EXPECT_EQ(window->Message(), "Comments edited. Save into logbook archive?");
        window->Press("No");
    }
    EXPECT_EQ(copies.First.Program().WaitForEnd(), GoodEnd);
    EXPECT_EQ(copies.Second.Program().WaitForEnd(), GoodEnd);
    EXPECT_EQ(nlohmann::json::parse(FileContent(SettingsFile()))["Logbook"]["MainIsMaximized"], 0);
    EXPECT_EQ(NamesIn(Config + "/VELTRANDOR"), (std::vector<std::string>{"Qorvix.json", "Qorvix.json.lock"}));
}

TEST_F(TwoCopies, ManyAtOnceLeaveAWholeArchive) {
    constexpr int Rounds = 10;
    const std::string log = Folder.Write("work/a.log", LogbookOf(500));
    std::vector<std::string> comments;
    for (const char* name : {"one", "two"})
        comments.push_back(Folder.Write(std::string("work/") + name + ".cmt",
                                        std::string("[Comments]\r\n 1 ") + name + "\r\n"));
    for (int round = 0; round < Rounds; ++round) {
        RunningProgram one(Tool, {"pack", log, Archive, "--comments", comments[0], "--drop-comments"},
                           Variables());
        RunningProgram two(Tool, {"pack", log, Archive, "--comments", comments[1], "--drop-comments"},
                           Variables());
        const ProgramEnd ends[] = {one.WaitForEnd(), two.WaitForEnd()};
        // One of them is there; the other came before it, or was told that it came too late.
        EXPECT_TRUE(Comments() == FileContent(comments[0]) || Comments() == FileContent(comments[1]));
        for (const RunningProgram* program : {&one, &two})
            EXPECT_TRUE(program->Errors().empty() ||
                        program->Errors() == "qorvix-cli: The archive could not be saved (" + Archive +
                                                 ": the archive was changed meanwhile)\n")
                << program->Errors();
        EXPECT_TRUE(ends[0] == GoodEnd || ends[1] == GoodEnd);
        EXPECT_EQ(NamesIn(Work), (std::vector<std::string>{"a.log", "a.qorvix", "one.cmt", "two.cmt"}));
    }
}
