// SPDX-License-Identifier: MIT
#include "comments/CommentJournalFixture.h"
#include "support/Abilities.h"
#include "support/OwnerAlone.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class CommentJournalTest : public CommentJournalFixture {};

TEST_F(CommentJournalTest, NothingIsWrittenWithoutAComment) {
    EXPECT_FALSE(Offer());
    EXPECT_FALSE(fs::exists(State));
}

TEST_F(CommentJournalTest, EachCommentIsALineBehindTheLogbook) {
    EXPECT_FALSE(Enter(Journal, 3, "pump \"A\"\nreplaced, grün"));
    EXPECT_FALSE(Enter(Journal, 3, ""));
    ASSERT_EQ(Files().size(), 1U);
    const EntryNumber counts[] = {4, 5};
    const std::vector<std::string> sums = ChecksumsOfBeginnings(Book, counts);
    EXPECT_EQ(FileContent(Files().front()),
              "{\"butLast\":\"" + sums[0] + "\",\"entries\":5,\"last\":\"" + ChecksumOfEntry(Book, 4) +
                  "\",\"whole\":\"" + sums[1] +
                  "\"}\n"
                  "{\"comment\":\"pump \\\"A\\\"\\nreplaced, grün\",\"entry\":3}\n"
                  "{\"comment\":\"\",\"entry\":3}\n");
    EXPECT_TRUE(IsForOwnerAlone(Files().front()));
}

TEST_F(CommentJournalTest, GoesWhenItsCommentsAreSavedOrDeclined) {
    EXPECT_FALSE(Enter(Journal, 0, "a"));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
    EXPECT_FALSE(Enter(Journal, 0, "b"));
    EXPECT_EQ(Files().size(), 1U);
}

TEST_F(CommentJournalTest, CommentsComeBackAfterACrash) {
    Crash({{1, "first"}, {4, "x"}, {1, "second"}});
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(User.Questions, ElementsAre(TextId::AskRestoreComments));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "second"), Pair(4, "x")));
    EXPECT_TRUE(Known.CommentsEdited);
    // They are as safe as before.
    EXPECT_EQ(Files().size(), 1U);
    EXPECT_THAT(LostComments(State, Book).Comments(), IsEmpty());
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, SurviveASecondCrash) {
    Crash({{1, "kept"}});
    {
        CommentJournal second(State);
        User.Answers = {UserInterface::Answer::Yes};
        EXPECT_TRUE(OfferLostComments(Book, Known, second, User));
        EXPECT_FALSE(Enter(second, 2, "more"));
    }
    FillTable(Book, Entries(5));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "kept"), Pair(2, "more")));
}

TEST_F(CommentJournalTest, DeclinedCommentsGo) {
    Crash({{1, "a"}});
    EXPECT_FALSE(Offer({UserInterface::Answer::No}));
    EXPECT_THAT(Book.Comments(), IsEmpty());
    EXPECT_FALSE(Known.CommentsEdited);
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, CancelOffersThemAgainTheNextTime) {
    Crash({{1, "a"}});
    EXPECT_FALSE(Offer({UserInterface::Answer::Cancel}));
    EXPECT_THAT(Book.Comments(), IsEmpty());
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "a")));
}

TEST_F(CommentJournalTest, RemovedCommentIsRemovedAgain) {
    Book.SetComment(2, "of the archive");
    {
        CommentJournal journal(State);
        EXPECT_FALSE(Enter(journal, 2, ""));
    }
    Book.SetComment(2, "of the archive");
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), IsEmpty());
}

TEST_F(CommentJournalTest, RestoredCommentsThatAreDroppedGo) {
    Crash({{1, "a"}});
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_EQ(Files().size(), 1U);
    EXPECT_FALSE(Enter(Journal, 2, "b"));
    EXPECT_EQ(Files().size(), 2U);
    Journal.Dropped();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, EveryCutOffFileGivesItsWholeLines) {
    Crash({{1, "first"}, {2, "second"}});
    const fs::path file = Files().front();
    const std::string whole = FileContent(file);
    const std::size_t firstEnd = whole.find('\n', whole.find('\n') + 1) + 1;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        fs::resize_file(file, length);
        const LostComments lost(State, Book);
        if (length < firstEnd)
            EXPECT_THAT(lost.Comments(), IsEmpty()) << length;
        else
            EXPECT_THAT(lost.Comments(), ElementsAre(Pair(1, "first"))) << length;
        std::ofstream(file, std::ios::binary | std::ios::trunc) << whole;
    }
}

TEST_F(CommentJournalTest, FullDiskIsToldAndLeavesNoHalfLine) {
    NEEDS_FILE_SIZE_LIMIT();
    EXPECT_FALSE(Enter(Journal, 1, "a"));
    const fs::path file = Files().front();
    const std::string before = FileContent(file);
    {
        const SmallFiles full(before.size() + 10);
        EXPECT_EQ(Enter(Journal, 2, "no room"), std::errc::file_too_large);
    }
    EXPECT_EQ(FileContent(file), before);
    EXPECT_FALSE(Enter(Journal, 3, "room again"));
    EXPECT_EQ(FileContent(file), before + "{\"comment\":\"no room\",\"entry\":2}\n"
                                          "{\"comment\":\"room again\",\"entry\":3}\n");
}

TEST_F(CommentJournalTest, JournalThatCouldNotBeBegunIsNotLeft) {
    NEEDS_FILE_SIZE_LIMIT();
    {
        const SmallFiles full(10);
        EXPECT_EQ(Enter(Journal, 1, "a"), std::errc::file_too_large);
    }
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, FileWithoutAWholeLineIsNotHeld) {
    EXPECT_FALSE(LostJournal::Hold(Folder.Write("begun", "{\"entries\":")));
    EXPECT_FALSE(LostJournal::Hold(Folder.Write("long", std::string(300, ' ') + "\n")));
    EXPECT_TRUE(LostJournal::Hold(Folder.Write("whole", "{\"entries\":5}\n")));
}

TEST_F(CommentJournalTest, CommentsThatCouldNotBeNotedAreNotedWithTheNext) {
    NEEDS_FILE_SIZE_LIMIT();
    auto journal = std::make_unique<CommentJournal>(State);
    fs::create_directories(State.parent_path());
    std::ofstream(State) << "a file";
    EXPECT_TRUE(Enter(*journal, 1, "first"));
    fs::remove(State);
    EXPECT_FALSE(Enter(*journal, 2, "second"));
    {
        const SmallFiles full(10);
        EXPECT_TRUE(Enter(*journal, 3, "third"));
    }
    EXPECT_FALSE(Enter(*journal, 2, "again"));
    journal.reset(); // a crash
    FillTable(Book, Entries(5));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "first"), Pair(2, "again"), Pair(3, "third")));
}

TEST_F(CommentJournalTest, FileThatSomebodyRemovedIsMadeAnewWithAllComments) {
    NEEDS_REMOVING_OPEN_FILES();
    CommentJournal journal(State);
    EXPECT_FALSE(Enter(journal, 1, "first"));
    fs::remove_all(State.parent_path());
    EXPECT_FALSE(Enter(journal, 2, "second"));
    ASSERT_EQ(Files().size(), 1U);
    const std::string content = FileContent(Files().front());
    EXPECT_NE(content.find("\"first\""), std::string::npos);
    EXPECT_NE(content.find("\"second\""), std::string::npos);
    journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, FolderThatCannotBeMadeIsTold) {
    fs::create_directories(State.parent_path());
    std::ofstream(State) << "a file";
    EXPECT_EQ(Enter(Journal, 1, "a"), std::errc::not_a_directory);
    EXPECT_FALSE(Offer());
}

TEST_F(CommentJournalTest, RestoringNeedsNoRoomOnTheDisk) {
    NEEDS_FILE_SIZE_LIMIT();
    Crash({{1, "a"}});
    const SmallFiles full(10);
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "a")));
    EXPECT_EQ(Files().size(), 1U);
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, RestoredCommentsAreNotedAgainWithTheNextOne) {
    NEEDS_REMOVING_OPEN_FILES();
    Crash({{1, "a"}});
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    fs::remove_all(State);
    EXPECT_FALSE(Enter(Journal, 2, "b"));
    ASSERT_EQ(Files().size(), 1U);
    const std::string content = FileContent(Files().front());
    EXPECT_NE(content.find("\"a\""), std::string::npos);
    EXPECT_NE(content.find("\"b\""), std::string::npos);
}

} // namespace
