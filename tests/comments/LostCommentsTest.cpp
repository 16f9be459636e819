// SPDX-License-Identifier: MIT
#include "comments/CommentJournalFixture.h"
#include "support/Abilities.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class LostCommentsTest : public CommentJournalFixture {};

TEST_F(LostCommentsTest, CommentsThatTheLogbookHasAreNotOffered) {
    Crash({{1, "a"}, {2, ""}});
    Book.SetComment(1, "a");
    EXPECT_FALSE(Offer());
    EXPECT_THAT(User.Questions, IsEmpty());
    EXPECT_FALSE(Known.CommentsEdited);
}

// The logbook that was open at the crash had a comment that this one, its plain copy, never had.
TEST_F(LostCommentsTest, RemovedCommentOutlivesAnotherCopyOfTheLogbook) {
    Book.SetComment(2, "of the archive");
    {
        CommentJournal journal(State);
        EXPECT_FALSE(Enter(journal, 2, ""));
    }
    EXPECT_FALSE(Offer());
    EXPECT_FALSE(Enter(Journal, 0, "unwanted"));
    Journal.Dropped();
    EXPECT_EQ(Files().size(), 1U);

    FillTable(Book, Entries(5));
    Book.SetComment(2, "of the archive");
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), IsEmpty());
}

TEST_F(LostCommentsTest, CommentsThatTheLogbookHasGoWhenItIsSaved) {
    Crash({{1, "a"}});
    Book.SetComment(1, "a");
    EXPECT_FALSE(Offer());
    EXPECT_FALSE(Enter(Journal, 1, "better"));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(LostCommentsTest, KeptCommentsAreNotOfferedElsewhere) {
    Crash({{1, "a"}});
    Book.SetComment(1, "a");
    EXPECT_FALSE(Offer());
    FillTable(Book, Entries(5));
    EXPECT_THAT(LostComments(State, Book).Comments(), IsEmpty());
    Journal.Dropped();
    EXPECT_EQ(LostComments(State, Book).Comments().size(), 1U);
}

TEST_F(LostCommentsTest, OtherLogbooksAreNotConcerned) {
    Crash({{1, "a"}});
    for (std::size_t changed = 0; changed < 4; ++changed)
        for (const int count : {5, 7}) {
            std::vector<TestEntry> other = Entries(count);
            other[changed].Data += '!';
            FillTable(Book, other);
            EXPECT_FALSE(Offer()) << changed << " of " << count;
        }
    std::vector<TestEntry> other = Entries(6);
    other.erase(other.begin());
    FillTable(Book, other);
    EXPECT_FALSE(Offer());
    // A logbook that was begun anew, and has fewer entries.
    for (const int count : {0, 1, 4}) {
        FillTable(Book, Entries(count));
        EXPECT_FALSE(Offer()) << count;
    }
    EXPECT_THAT(User.Questions, IsEmpty());
    EXPECT_EQ(Files().size(), 1U);
}

TEST_F(LostCommentsTest, LogbookThatHasGrownIsOfferedItsComments) {
    for (const int count : {6, 8, 500}) {
        Crash({{0, "a"}, {4, "of the last"}});
        std::vector<TestEntry> grown = Entries(count);
        grown[5] = {EventTypes::Error, "new", "new sender", "new name", "05.01.2010 00:00:00"};
        FillTable(Book, grown);
        EXPECT_TRUE(Offer({UserInterface::Answer::Yes})) << count;
        EXPECT_THAT(Book.Comments(), ElementsAre(Pair(0, "a"), Pair(4, "of the last")));
        // The next is noted for the logbook as it is now.
        EXPECT_FALSE(Enter(Journal, 5, "more"));
        Journal.Saved();
        EXPECT_THAT(Files(), IsEmpty());
        FillTable(Book, Entries(5));
    }
}

TEST_F(LostCommentsTest, LastEntryMayChangeWhereALogbookGrows) {
    for (const int count : {5, 6}) {
        Crash({{0, "a"}, {4, "of the last"}});
        std::vector<TestEntry> grown = Entries(count);
        grown[4].Data += " | a line that belongs to it";
        grown[4].EventType = EventTypes::Error;
        FillTable(Book, grown);
        EXPECT_TRUE(Offer({UserInterface::Answer::Yes})) << count;
        EXPECT_THAT(Book.Comments(), ElementsAre(Pair(0, "a"), Pair(4, "of the last")));
        Journal.Saved();
        FillTable(Book, Entries(5));
    }
}

// Two logbooks that begin alike, as those of machines that were copied do.
TEST_F(LostCommentsTest, AnotherLastEntryIsAnotherLogbook) {
    const std::vector<TestEntry> other{{EventTypes::Info, "data 4", "PLC", "name"},
                                       {EventTypes::Info, "data 4", "NC", "another"},
                                       {EventTypes::Info, "data 4", "NC", "name", "04.01.2010 12:34:57"},
                                       {EventTypes::Info, "data 4", "NC", "name", "05.01.2010 12:34:56"},
                                       {EventTypes::Info, "data 4", "NC", "name", "no clock"}};
    for (const std::pair<EntryNumber, std::string> comment : {std::pair{0U, "a"}, std::pair{4U, "b"}}) {
        Crash({comment});
        for (const TestEntry& last : other)
            for (const int count : {5, 7}) {
                std::vector<TestEntry> entries = Entries(count);
                entries[4] = last;
                FillTable(Book, entries);
                EXPECT_FALSE(Offer()) << last.Sender << ' ' << last.Name << ' ' << last.Time;
            }
        FillTable(Book, Entries(5));
    }
    EXPECT_EQ(Files().size(), 2U);
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(0, "a"), Pair(4, "b")));
}

TEST_F(LostCommentsTest, SingleEntryIsKnownAsItWasOnly) {
    const auto crash = [&] {
        FillTable(Book, Entries(1));
        CommentJournal journal(State);
        EXPECT_FALSE(Enter(journal, 0, "a"));
    };
    crash();
    FillTable(Book,
              {{EventTypes::Info, "another", "NC", "name"}, {EventTypes::Info, "data 1", "NC", "name"}});
    EXPECT_FALSE(Offer());
    FillTable(Book, Entries(2));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(0, "a")));
}

TEST_F(LostCommentsTest, JournalsOfSeveralStatesOfALogbookAreOfferedTogether) {
    for (const int count : {3, 5, 4}) {
        FillTable(Book, Entries(count));
        CommentJournal journal(State);
        EXPECT_FALSE(Enter(journal, static_cast<EntryNumber>(count - 1), std::to_string(count)));
    }
    FillTable(Book, Entries(9));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(2, "3"), Pair(3, "4"), Pair(4, "5")));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

// As version 0.1 wrote them: known by the logbook as it was.
TEST_F(LostCommentsTest, JournalsOfTheFirstVersionAreOffered) {
    fs::create_directories(State);
    const auto leave = [&] {
        std::ofstream(State / "comments-Ab12cd")
            << "{\"entries\":5,\"logbook\":\"e08d88aeb856d58bdd3fc5c27818a84f\"}\n{\"comment\":\"a\","
               "\"entry\":1}\n";
    };
    leave();
    FillTable(Book, Entries(6));
    EXPECT_FALSE(Offer());
    FillTable(Book, Entries(5));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "a")));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(LostCommentsTest, CopyThatRunsKeepsItsCommentsToItself) {
    CommentJournal running(State);
    EXPECT_FALSE(Enter(running, 1, "a"));
    FillTable(Book, Entries(5));
    EXPECT_FALSE(Offer());
    EXPECT_THAT(User.Questions, IsEmpty());
    EXPECT_EQ(Files().size(), 1U);
}

TEST_F(LostCommentsTest, WhoIsAskedHoldsTheCommentsAgainstOthers) {
    Crash({{1, "a"}});
    const LostComments asked(State, Book);
    EXPECT_EQ(asked.Comments().size(), 1U);
    EXPECT_FALSE(Offer());
    EXPECT_THAT(User.Questions, IsEmpty());
}

// Two windows had the logbook, or a comment was entered again: what one holds of the other counts once.
TEST_F(LostCommentsTest, OfTwoCrashesBothAreKept) {
    Crash({{1, "early"}, {2, "kept"}, {3, "pump"}, {4, "pump dry, filled"}, {0, "gone"}});
    const fs::path early = Files().front();
    Crash({{1, "late"}, {3, "pump dry"}, {4, "pump dry"}, {0, ""}});
    fs::last_write_time(early, fs::last_write_time(early) - std::chrono::hours(1));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "early | late"), Pair(2, "kept"), Pair(3, "pump dry"),
                                             Pair(4, "pump dry, filled")));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(LostCommentsTest, StrangeLinesAndFilesArePassedOver) {
    NEEDS_LINKS();
    Crash({{1, "a"}});
    std::ofstream(Files().front(), std::ios::app) << "nonsense\n[1]\n{\"entry\":5,\"comment\":\"behind\"}\n"
                                                     "{\"entry\":-1,\"comment\":\"before\"}\n"
                                                     "{\"entry\":2}\n{\"entry\":2,\"comment\":7}\n"
                                                     "{\"entry\":3,\"comment\":\"b\"}\n";
    std::ofstream(State / "empty");
    std::ofstream(State / "other") << "{\"entries\":5,\"logbook\":5}\n";
    fs::create_directory(State / "folder");
    fs::create_symlink("nowhere", State / "link");
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "a"), Pair(3, "b")));
    EXPECT_EQ(Files().size(), 5U);
}

TEST_F(LostCommentsTest, FileThatTookTheNameOfALostOneIsNotRemoved) {
    NEEDS_REMOVING_OPEN_FILES();
    Crash({{1, "a"}});
    const fs::path file = Files().front();
    const std::optional<LostJournal> journal = LostJournal::Hold(file);
    ASSERT_TRUE(journal);
    fs::rename(Folder.Write("other", "of another copy"), file);
    journal->Remove();
    EXPECT_EQ(FileContent(file), "of another copy");
}

TEST_F(LostCommentsTest, NestedLinesExhaustNothing) {
    Crash({{1, "a"}});
    const std::string nested = "{\"comment\":" + std::string(300000, '[') + std::string(300000, ']') + "}\n";
    std::ofstream(Files().front(), std::ios::app) << nested << "{\"entry\":2,\"comment\":\"b\"}\n";
    std::ofstream(State / "nested") << nested;
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "a"), Pair(2, "b")));
}

TEST_F(LostCommentsTest, MoreJournalsThanCanBeHeldAreOfferedBitByBit) {
    constexpr std::size_t Count = 250;
    Crash({{1, "a"}});
    const fs::path first = Files().front();
    for (std::size_t i = 1; i < Count; ++i)
        fs::copy_file(first, State / ("comments-" + std::to_string(i)));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    Journal.Saved();
    EXPECT_EQ(Files().size(), Count - 200);
    FillTable(Book, Entries(5));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

} // namespace
