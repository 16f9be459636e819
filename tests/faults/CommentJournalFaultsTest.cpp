// SPDX-License-Identifier: MIT
// Comments that were entered and not saved when the program was killed, or when their journal cannot be
// written.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"

#include <cerrno>

namespace {

namespace fs = std::filesystem;

constexpr const char* Question = "Comments on this logbook were not saved the last time. Restore them?";
constexpr std::size_t CommentColumn = 6;

class CommentJournalFaults : public FaultTest {
  protected:
    // Enters comments in a window of its own and kills it.
    void EnterAndKill(const std::vector<std::pair<int, std::string>>& comments) {
        ProgramWindow window({LogFile}, Variables());
        window.UntilShown();
        for (const auto& [row, comment] : comments)
            window.Comment(row, comment);
        window.Program().Kill();
        EXPECT_EQ(window.Program().WaitForEnd(), KilledEnd);
    }

    std::size_t Journals() const { return fs::exists(Journal) ? NamesIn(Journal).size() : 0; }

    const std::string LogFile = Folder.Write("work/a.log", LogbookOf(5));
    const std::string Journal = State + "/VELTRANDOR/Qorvix";
};

} // namespace

TEST_F(CommentJournalFaults, CommentThatWasJustEnteredSurvives) {
    EnterAndKill({{1, "pump replaced"}, {3, "first"}, {3, "second, \"grün\""}});
    EXPECT_EQ(Journals(), 1U);
    // A copy of the logbook elsewhere is the same logbook.
    fs::rename(LogFile, Folder / "work/b.log");
    ProgramWindow window({Folder / "work/b.log"}, Variables());
    EXPECT_EQ(window.Message(), Question);
    window.Press("Yes");
    EXPECT_EQ(window.UntilIdle().Column(CommentColumn),
              (std::vector<std::string>{"", "pump replaced", "", "second, \"grün\"", ""}));
    window.SaveAs(Folder / "work/saved.qorvix");
    window.UntilIdle();
    EXPECT_EQ(Journals(), 0U);
    window.Close();
    EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);

    ProgramWindow again({Folder / "work/b.log"}, Variables());
    EXPECT_EQ(again.UntilShown().Column(CommentColumn), std::vector<std::string>(5));
}

TEST_F(CommentJournalFaults, LogbookThatTheControlWentOnWritingHasThemBack) {
    EnterAndKill({{1, "pump replaced"}, {4, "of the last"}});
    Folder.Write("work/a.log", LogbookOf(8));
    ProgramWindow window({LogFile}, Variables());
    EXPECT_EQ(window.Message(), Question);
    window.Press("Yes");
    EXPECT_EQ(window.UntilIdle().Column(CommentColumn),
              (std::vector<std::string>{"", "pump replaced", "", "", "of the last", "", "", ""}));
}

TEST_F(CommentJournalFaults, RestoredCommentsSurviveTheNextKillToo) {
    EnterAndKill({{0, "twice"}});
    {
        ProgramWindow window({LogFile}, Variables());
        EXPECT_EQ(window.Message(), Question);
        window.Press("Yes");
        window.UntilIdle();
        window.Program().Kill();
        EXPECT_EQ(window.Program().WaitForEnd(), KilledEnd);
    }
    ProgramWindow window({LogFile}, Variables());
    EXPECT_EQ(window.Message(), Question);
    window.Press("Yes");
    EXPECT_EQ(window.UntilIdle().Column(CommentColumn).front(), "twice");
    EXPECT_EQ(Journals(), 1U);
}

TEST_F(CommentJournalFaults, DeclinedCommentsAreNotOfferedAgain) {
    EnterAndKill({{0, "unwanted"}});
    {
        ProgramWindow window({LogFile}, Variables());
        EXPECT_EQ(window.Message(), Question);
        window.Press("No");
        EXPECT_EQ(window.UntilIdle().Column(CommentColumn).front(), "");
        EXPECT_EQ(Journals(), 0U);
        window.Close();
        EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    }
    ProgramWindow window({LogFile}, Variables());
    window.UntilShown();
}

TEST_F(CommentJournalFaults, SecondCopyIsNotAskedWhileTheFirstRuns) {
    ProgramWindow first({LogFile}, Variables());
    first.UntilShown();
    first.Comment(2, "mine");
    {
        ProgramWindow second({LogFile}, Variables());
        EXPECT_EQ(second.UntilShown().Column(CommentColumn), std::vector<std::string>(5));
        second.Close();
        EXPECT_EQ(second.Program().WaitForEnd(), GoodEnd);
    }
    first.Program().Kill();
    EXPECT_EQ(first.Program().WaitForEnd(), KilledEnd);
    ProgramWindow next({LogFile}, Variables());
    EXPECT_EQ(next.Message(), Question);
}

TEST_F(CommentJournalFaults, KilledAtEveryCallOfTheJournal) {
    const auto idleOrEnded = [](const Sight& sight) { return sight.IsIdle() || !sight.IsShown; };
    int killed = 0;
    for (bool inTime = true; inTime; ++killed) {
        fs::remove_all(State);
        fs::create_directory(State);
        {
            ProgramWindow window({LogFile}, Variables(KilledAt(State, killed)));
            window.UntilShown();
            window.EnterComment(0, "entered");
            inTime = !window.Until(idleOrEnded, "the end or the comment").IsShown;
            window.Program().Kill();
            EXPECT_EQ(window.Program().WaitForEnd(), KilledEnd);
        }
        // What was written whole is offered, and nothing stands in the way of the next start.
        ProgramWindow next({LogFile}, Variables());
        const Sight sight = next.Until(
            [](const Sight& seen) {
                return seen.Front == "QMessageBox" || (seen.IsIdle() && !seen.Counts.empty());
            },
            "the logbook");
        if (sight.Front == "QMessageBox") {
            EXPECT_EQ(sight.Text, Question);
            next.Press("Yes");
            EXPECT_EQ(next.UntilIdle().Column(CommentColumn).front(), "entered");
        } else {
            EXPECT_TRUE(inTime) << killed;
        }
        ASSERT_LT(killed, 50);
    }
    EXPECT_GT(killed, 4);
}

TEST_F(CommentJournalFaults, FullDiskIsToldInTheStatusBar) {
    for (const Fault& fault : {FullDisk(State), ReadOnlyDisk(State)}) {
        ProgramWindow window({LogFile}, Variables(fault));
        window.UntilShown();
        window.EnterComment(0, "kept in the list");
        const Sight sight = window.Until(
            [](const Sight& seen) {
                return seen.Status.starts_with("Comments are not secured against a crash: ");
            },
            "the status");
        EXPECT_EQ(sight.Column(CommentColumn).front(), "kept in the list");
        EXPECT_EQ(Journals(), 0U);
        window.SaveAs(Folder / "work/saved.qorvix");
        window.Until(
            [&](const Sight& seen) { return seen.Front.empty() && fs::exists(Folder / "work/saved.qorvix"); },
            "the archive");
        window.Close();
        EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
        fs::remove(Folder / "work/saved.qorvix");
    }
}
